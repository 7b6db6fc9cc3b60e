#include "scenario/statements.h"

#include <set>

namespace orvane::scenario {

namespace {

const std::set<std::string> Verbs{// what a person does
                                  "clic", "menu", "choisir", "taper", "fermer", "activer", "ouvrir",
                                  "parcourir", "photo", "prendre", "démarrer", "relancer",
                                  "annuler", "passer",
                                  // a tool for developers, which no rule shows
                                  "montrer",
                                  // what happens to the folder meanwhile
                                  "base", "perdre", "rendre", "bloquer", "libérer", "écrire",
                                  // for a later look
                                  "retenir"};

class Maker
{
  public:
    explicit Maker(const Shorthands& Short) : Short(Short) {}

    void Take(const ScriptLine& Given)
    {
        At = Given.At;
        const auto [Word, Rest] = FirstWord(Given.Text);
        if (Word == "tableau")
            return BeginTable(Rest);
        if (!Columns.empty() && Given.Text.find("->") != std::string::npos)
            return TakeRow(Given.Text);
        Columns.clear();
        Statements(Given.Text);
    }

    std::vector<Step> Steps;

  private:
    void Statements(const std::string& Text)
    {
        if (FirstWord(Text).first == "base") // SQL has semicolons of its own
            return Statement(Text);
        for (const std::string& Each : Parts(Text, " ; "))
            Statement(Each);
    }

    void Statement(const std::string& Text)
    {
        const auto [Word, Rest] = FirstWord(Text);
        if (const auto Found = Short.Gestures.find(Word); Found != Short.Gestures.end())
            return Statements(Written(Found->second, Rest));
        if (Word == "suivre")
            return Follow(Rest);
        if (Verbs.contains(Word)) {
            const auto [Target, Given] = Halves(Rest, "=");
            Steps.push_back({At, Word, Target, Unquoted(Given), {}});
            return;
        }
        const auto Colon = Text.find(':');
        if (Colon == std::string::npos)
            throw CannotGoOn("not understood: " + Text);
        const auto [Looked, Wanted] = Halves(Text, ":");
        if (Looked == "boîte" || Looked == "question" || Looked == "couleur")
            return Await(Looked, Wanted);
        Steps.push_back({At, {}, Looked, Unescaped(Wanted), {}});
    }

    // "Aucun objet sélectionné. -> nom-de-photo", "Nom de l'acheteur ?… = Maël"
    void Await(const std::string& Kind, const std::string& Given)
    {
        if (Given.empty()) // a row of a table in which none comes up
            return;
        if (Steps.empty() || Steps.back().Verb.empty())
            throw CannotGoOn("a box stands behind the action that brings it up");
        const auto [Words, Photo] = Halves(Given, "->");
        if (Kind == "boîte")
            return Steps.back().Boxes.push_back({Kind, Words, {}, Photo});
        const auto [Prompt, Answer] = Halves(Words, "=");
        Steps.back().Boxes.push_back({Kind, Prompt, Unquoted(Answer), Photo});
    }

    void Follow(const std::string& Given)
    {
        const auto [Name, Way] = Halves(Given, "=");
        const auto Found = Short.Paths.find(Name);
        const auto Entries = Parts(Way, "/");
        if (Found == Short.Paths.end() || Entries.size() > Found->second.size())
            throw CannotGoOn("no such path, or one that ends earlier: " + Given);
        for (std::size_t i = 0; i < Entries.size(); ++i)
            Statement(Found->second[i] == "Bar_Menus"
                          ? "menu " + Entries[i]
                          : "choisir " + Found->second[i] + " = " + Entries[i]);
    }

    std::string Written(const Shorthands::Gesture& Which, const std::string& Given) const
    {
        const auto Values = Given.empty() && Which.Parameters.empty() ? std::vector<std::string>()
                                                                      : Parts(Given, "|");
        if (Values.size() != Which.Parameters.size())
            throw CannotGoOn("another number of values than the gesture has: " + Given);
        std::string Text = Which.Body;
        for (std::size_t i = 0; i < Values.size(); ++i)
            Text = Replaced(Text, "<" + Which.Parameters[i] + ">", Values[i]);
        return Text;
    }

    void BeginTable(const std::string& Header)
    {
        const auto [Acts, Seen] = Halves(Header, "->");
        Columns = Parts(Acts, "|");
        for (std::string& Each : Columns)
            if (Each == "boîte" || Each == "question")
                Each += ":";
        Looks = Parts(Seen, ";");
    }

    void TakeRow(const std::string& Row)
    {
        const auto [Acts, Seen] = Halves(Row, "->");
        const auto Cells = Parts(Acts, "|");
        const auto Wanted = Parts(Seen, ";");
        if (Cells.size() != Columns.size() || Wanted.size() != Looks.size())
            throw CannotGoOn("another number of cells than the table's first line: " + Row);
        for (std::size_t i = 0; i < Cells.size(); ++i)
            Statements(Columns[i] + " " + Cells[i]);
        for (std::size_t i = 0; i < Wanted.size(); ++i)
            Statement(Looks[i] + ": " + Wanted[i]);
    }

    // Blanks at the ends of a text, or a text of nothing but blanks, stand in quotes; characters
    // that can't be seen by their numbers: \u0301.
    static std::string Unquoted(const std::string& Text)
    {
        const bool IsQuoted = Text.size() > 1 && Text.starts_with('"') && Text.ends_with('"');
        return Unescaped(IsQuoted ? Text.substr(1, Text.size() - 2) : Text);
    }

    const Shorthands& Short;
    Place At;
    std::vector<std::string> Columns; // of the table in hand: what is done, ...
    std::vector<std::string> Looks;   // ... and what is looked at
};

} // namespace

void Shorthands::Add(const std::string& Kind, const std::string& Definition)
{
    const auto [Head, Body] = Halves(Definition, "=");
    if (Kind == "chemin") {
        Paths[Head] = Parts(Body, "/");
        return;
    }
    const auto [Name, Rest] = Halves(Head, "(");
    Gestures[Name] = {Rest.empty() ? std::vector<std::string>()
                                   : Parts(Rest.substr(0, Rest.find(')')), ","),
                      Body};
}

std::vector<Step> StepsOf(const std::vector<ScriptLine>& Lines, const Shorthands& Short)
{
    Maker Result(Short);
    for (const ScriptLine& Each : Lines)
        try {
            Result.Take(Each);
        } catch (const CannotGoOn& Given) {
            throw CannotGoOn(Each.At.File + ":" + std::to_string(Each.At.Line) + ": " +
                             Given.what());
        }
    return std::move(Result.Steps);
}

} // namespace orvane::scenario
