#pragma once

#include "scenario/script.h"

#include <string>
#include <utility>
#include <vector>

// The letters of a scenario: lines, words, halves.
namespace orvane::scenario {

struct ScriptLine
{
    Place At;
    std::string Text; // without comment and without the blanks around it
    bool Indented = false;
};

// The lines that say something; one that ends in \ goes on in the next. CannotGoOn.
std::vector<ScriptLine> LinesOf(const std::filesystem::path& File);

std::pair<std::string, std::string> FirstWord(const std::string& Text);

// What stands before and behind the first separator; everything before when there is none.
std::pair<std::string, std::string> Halves(const std::string& Text, std::string_view Separator);

// Put together again.
std::string Joined(const std::vector<std::string>& Cells, std::string_view Separator);

// With the character itself for each "\\u" and four hexadecimal digits.
std::string Unescaped(const std::string& Text);

std::string Replaced(std::string Text, std::string_view From, std::string_view To);

} // namespace orvane::scenario
