#pragma once

#include <filesystem>
#include <map>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// What an option was given: its operands, and the words that go with it.
struct Given
{
    std::filesystem::path Folder;             // of the databases
    std::vector<std::string> Operands;        // one that may be left out may be missing here
    std::map<std::string, std::string> Words; // "--royaume" with its operand, or an empty text

    bool Has(const std::string& Word) const { return Words.contains(Word); }
};

// Words that don't make sense together, or an operand that nothing is called: status 2.
struct Misunderstanding
{
    std::string Sentence;
};

// Does what an option asks for, says what it has to say on Out, what is to be known beside it on
// Remarks, and returns the exit status. Failure: the caller tells it, status 1. Misunderstanding.
using Command = int (*)(const Given&, std::ostream& Out, std::ostream& Remarks);

// A row of the table of options: a command, or a word that goes with others.
struct Option
{
    std::string_view Name;
    std::vector<std::string_view> Operands; // "[DOSSIER]" may be left out
    std::string_view Help;
    Command Run = nullptr;                    // none for a word
    std::vector<std::string_view> Words = {}; // those that may go with it, beside --dossier
};

// The whole table, in the order of --help.
std::span<const Option> Options();

// The row of that name, or none.
const Option* FindOption(std::string_view Name);

// "--liste COMMANDE [--royaume ROYAUME]"
std::string Usage(const Option& Row);

} // namespace orvane
