#include "scenario/script.h"

#include "scenario/lines.h"
#include "scenario/statements.h"

#include <ranges>

namespace orvane::scenario {

namespace fs = std::filesystem;

namespace {

// The sections of one file in the order of its lines.
class Reader
{
  public:
    Reader(Script& Result, Shorthands& Short) : Result(Result), Short(Short) {}

    void Read(const fs::path& File)
    {
        for (const ScriptLine& Each : LinesOf(File))
            try {
                Take(Each, File);
            } catch (const CannotGoOn& Given) {
                throw CannotGoOn(Each.At.File + ":" + std::to_string(Each.At.Line) + ": " +
                                 Given.what());
            }
        Finish();
    }

  private:
    enum class In { Nothing, Before, Scenario, Examples };

    void Take(const ScriptLine& Given, const fs::path& File)
    {
        if (Given.Indented)
            return TakeInside(Given);
        Finish();
        const auto [Word, Rest] = FirstWord(Given.Text);
        if (Word == "lire")
            Reader(Result, Short).Read(Included(File, Rest));
        else if (Word == "vue")
            AddView(Rest);
        else if (Word == "geste" || Word == "chemin")
            Short.Add(Word, Rest);
        else if (Word == "avant")
            Inside = In::Before;
        else if (Word == "scénario") {
            Inside = In::Scenario;
            Title = {Given.At, Rest};
        } else
            throw CannotGoOn("not understood: " + Given.Text);
    }

    void TakeInside(const ScriptLine& Given)
    {
        if (Inside == In::Nothing)
            throw CannotGoOn("a line inside nothing");
        if (Given.Text == "exemples")
            Inside = In::Examples;
        else if (Inside == In::Examples)
            Examples.push_back(Given);
        else
            (Inside == In::Before ? Short.Before : Body).push_back(Given);
    }

    // The scenario whose lines have been read, once for each row of its examples.
    void Finish()
    {
        if (Inside == In::Examples && Examples.size() < 2)
            throw CannotGoOn("examples without a row");
        if (Inside == In::Scenario)
            Make(Title, {}, {});
        const auto Names =
            Examples.empty() ? std::vector<std::string>() : Parts(Examples.front().Text, "|");
        for (const ScriptLine& Row : Examples | std::views::drop(1))
            Make({Row.At, Title.Text + " (" + Row.Text + ")"}, Names, Parts(Row.Text, "|"));
        Inside = In::Nothing;
        Body.clear();
        Examples.clear();
    }

    void Make(const ScriptLine& Head, const std::vector<std::string>& Names,
              const std::vector<std::string>& Cells)
    {
        if (Names.size() != Cells.size())
            throw CannotGoOn(Head.At.File + ":" + std::to_string(Head.At.Line) +
                             ": another number of cells than the first row");
        std::vector<ScriptLine> Lines = Short.Before;
        Lines.insert(Lines.end(), Body.begin(), Body.end());
        for (ScriptLine& Each : Lines)
            for (std::size_t i = 0; i < Names.size(); ++i)
                Each.Text = Replaced(Each.Text, "<" + Names[i] + ">", Cells[i]);
        Result.Scenarios.push_back({Head.At, Head.Text, StepsOf(Lines, Short)});
    }

    void AddView(const std::string& Definition)
    {
        const auto [Name, Template] = Halves(Definition, "=");
        const auto Words = Parts(Name, " ");
        if (Words.size() == 1) {
            Result.TheViews[Name] = {Template};
            return;
        }
        const auto Range = Parts(Words.at(1), "-"); // "1-6"
        std::vector<std::string>& Lines = Result.TheViews[Words[0]];
        for (int i = std::stoi(Range.at(0)); i <= std::stoi(Range.at(1)); ++i)
            Lines.push_back(Replaced(Template, "#", std::to_string(i)));
    }

    static fs::path Included(const fs::path& File, const std::string& Name)
    {
        for (fs::path Folder = File.parent_path(); Folder.has_relative_path();
             Folder = Folder.parent_path())
            if (fs::exists(Folder / (Name + ".vues")))
                return Folder / (Name + ".vues");
        throw CannotGoOn("no file " + Name + ".vues here or above");
    }

    Script& Result;
    Shorthands& Short;
    In Inside = In::Nothing;
    ScriptLine Title;
    std::vector<ScriptLine> Body;
    std::vector<ScriptLine> Examples;
};

} // namespace

Script ReadScript(const fs::path& File)
{
    Script Result;
    Shorthands Short;
    Reader(Result, Short).Read(fs::absolute(File));
    return Result;
}

} // namespace orvane::scenario
