#include "scenario/lines.h"

#include <fstream>
#include <unicode/unistr.h>

namespace orvane::scenario {

namespace {

std::string Trimmed(std::string_view Text)
{
    const auto First = Text.find_first_not_of(" \t");
    if (First == std::string_view::npos)
        return {};
    return std::string(Text.substr(First, Text.find_last_not_of(" \t") - First + 1));
}

// A comment begins with a # that stands alone: "#2" is the second entry of a list.
std::string WithoutComment(const std::string& Text)
{
    return Text.starts_with("# ") || Text == "#" ? "" : Text.substr(0, Text.find(" # "));
}

} // namespace

std::vector<ScriptLine> LinesOf(const std::filesystem::path& File)
{
    std::ifstream Stream(File);
    if (!Stream)
        throw CannotGoOn(File.string() + ": can't be read");
    std::vector<ScriptLine> Lines;
    bool GoesOn = false;
    std::string Read;
    for (int Number = 1; std::getline(Stream, Read); ++Number) {
        std::string Text = Trimmed(WithoutComment(Trimmed(Read)));
        if (Text.empty())
            continue;
        const bool Continues = Text.ends_with('\\');
        if (Continues)
            Text = Trimmed(std::string_view(Text).substr(0, Text.size() - 1));
        if (GoesOn)
            Lines.back().Text += " " + Text;
        else
            Lines.push_back({{File.string(), Number}, Text, Read.front() == ' '});
        GoesOn = Continues;
    }
    return Lines;
}

std::pair<std::string, std::string> FirstWord(const std::string& Text)
{
    return Halves(Text, " ");
}

std::pair<std::string, std::string> Halves(const std::string& Text, std::string_view Separator)
{
    const auto At = Text.find(Separator);
    if (At == std::string::npos)
        return {Trimmed(Text), {}};
    return {Trimmed(std::string_view(Text).substr(0, At)),
            Trimmed(std::string_view(Text).substr(At + Separator.size()))};
}

std::string Joined(const std::vector<std::string>& Cells, std::string_view Separator)
{
    std::string Result;
    for (std::size_t i = 0; i < Cells.size(); ++i)
        Result += (i == 0 ? "" : std::string(Separator)) + Cells[i];
    return Result;
}

std::string Unescaped(const std::string& Text)
{
    icu::UnicodeString Result = icu::UnicodeString::fromUTF8(Text);
    if (Text.find("\\u") != std::string::npos)
        Result = Result.unescape();
    std::string Utf8;
    return Result.toUTF8String(Utf8);
}

std::string Replaced(std::string Text, std::string_view From, std::string_view To)
{
    for (auto At = Text.find(From); At != std::string::npos; At = Text.find(From, At + To.size()))
        Text.replace(At, From.size(), To);
    return Text;
}

std::vector<std::string> Parts(const std::string& Text, std::string_view Separator)
{
    std::vector<std::string> Result;
    std::size_t Start = 0;
    for (std::size_t At = 0; At != std::string::npos; Start = At + Separator.size()) {
        At = Text.find(Separator, Start);
        Result.push_back(Trimmed(
            std::string_view(Text).substr(Start, At == std::string::npos ? At : At - Start)));
    }
    return Result;
}

} // namespace orvane::scenario
