#include "command_line/command_line.h"

#include "base/failure.h"
#include "base/text.h"
#include "base/typography.h"
#include "command_line/options.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;
constexpr int NotUnderstood = 2;

// What was asked for: a command or none, with all that was said beside it.
struct Request
{
    const Option* Asked = nullptr;
    Given What;
};

// Walks the arguments from left to right.
class Reader
{
  public:
    Reader(const std::vector<std::string>& Arguments, std::filesystem::path ProgramFolder)
        : Next(Arguments.begin()),
          End(Arguments.end())
    {
        Read.What.Folder = std::move(ProgramFolder);
    }

    Request Whole()
    {
        while (Next != End)
            TakeOne(*Next++);
        for (const auto& [Word, Operand] : Read.What.Words)
            RefuseUnlessTaken(Word);
        return Read;
    }

  private:
    void TakeOne(const std::string& Argument)
    {
        if (Argument.starts_with("-") && !Argument.starts_with("--")) {
            if (Next != End && !Next->starts_with("-"))
                ++Next; // the toolkit's, with its value
            return;
        }
        const Option* Row = FindOption(Argument);
        if (Row == nullptr)
            throw Misunderstanding{"L’option « " + Argument + " » n’est pas connue."};
        std::vector<std::string> Operands = TakeOperands(*Row);
        if (Row->Run == nullptr) {
            if (!Read.What.Words.emplace(Argument, Operands.empty() ? "" : Operands[0]).second)
                throw Misunderstanding{"L’option « " + Argument + " » est donnée deux fois."};
        } else {
            if (Read.Asked != nullptr)
                throw Misunderstanding{"Les options « " + std::string(Read.Asked->Name) +
                                       " » et « " + Argument + " » ne vont pas ensemble."};
            Read.Asked = Row;
            Read.What.Operands = std::move(Operands);
        }
    }

    std::vector<std::string> TakeOperands(const Option& Row)
    {
        std::vector<std::string> Operands;
        for (const std::string_view Name : Row.Operands) {
            const bool Optional = Name.starts_with('[');
            if (Next == End || FindOption(*Next) != nullptr ||
                (Optional && Next->starts_with("-"))) {
                if (Optional)
                    break;
                throw Misunderstanding{"Il manque ce qui suit « " + std::string(Row.Name) +
                                       " » : " + std::string(Name) + "."};
            }
            Operands.push_back(*Next++);
        }
        return Operands;
    }

    void RefuseUnlessTaken(const std::string& Word) const
    {
        if (Word == "--dossier")
            return;
        if (Read.Asked == nullptr ||
            std::ranges::find(Read.Asked->Words, Word) == Read.Asked->Words.end())
            throw Misunderstanding{"L’option « " + Word + " » n’a pas de sens ici."};
    }

    std::vector<std::string>::const_iterator Next;
    std::vector<std::string>::const_iterator End;
    Request Read;
};

std::filesystem::path ChosenFolder(const Given& What)
{
    if (!What.Has("--dossier"))
        return What.Folder;
    const std::string& Named = What.Words.at("--dossier");
    std::error_code Ignored;
    if (!std::filesystem::is_directory(Named, Ignored))
        throw Failure(FailureKind::Told, "Le dossier « " + Named + " » n’existe pas.");
    return std::filesystem::absolute(Named);
}

int Run(const Request& Asked, std::ostream& Out, std::ostream& Remarks)
{
    UseFrench();
    const int Status = Asked.Asked->Run(Asked.What, Out, Remarks);
    if (!Out.flush())
        throw Failure(FailureKind::Told, "La réponse n’a pas pu être écrite jusqu’au bout.");
    return Status;
}

} // namespace

CommandLine RunCommandLine(const std::vector<std::string>& Arguments,
                           const std::filesystem::path& ProgramFolder, std::ostream& Out,
                           std::ostream& Errors)
{
    try {
        Request Asked = Reader(Arguments, ProgramFolder).Whole();
        Asked.What.Folder = ChosenFolder(Asked.What);
        if (Asked.Asked == nullptr)
            return {Asked.What.Folder, {}};
        return {Asked.What.Folder, Run(Asked, Out, Errors)};
    } catch (const Misunderstanding& Unclear) {
        Errors << Typeset(Unclear.Sentence + " « orvane --help » montre les options.") << "\n";
        return {ProgramFolder, NotUnderstood};
    } catch (const Failure& Given) {
        Errors << Given.Sentence() << "\n";
    } catch (const std::exception& Unexpected) {
        Errors << Failure(FailureKind::Program, Unexpected.what()).Sentence() << "\n";
    }
    return {ProgramFolder, Failed};
}

} // namespace orvane
