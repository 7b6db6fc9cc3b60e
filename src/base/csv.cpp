#include "base/csv.h"

#include "base/number_text.h"

namespace orvane {

namespace {

constexpr std::string_view Blanks = " \t\r\n";

// Spreadsheets look behind blanks for the sign that begins a formula.
std::string Plain(const std::string& Cell)
{
    const auto First = Cell.find_first_not_of(Blanks);
    const bool LikeFormula = First != std::string::npos &&
                             std::string_view("=+-@").find(Cell[First]) != std::string_view::npos;
    return LikeFormula && !DoubleFromText(Cell) ? "'" + Cell : Cell;
}

std::string InQuotes(const std::string& Cell)
{
    if (Cell.find_first_of(";\"\r\n") == std::string::npos)
        return Cell;
    std::string Result = "\"";
    for (const char Sign : Cell)
        Result += Sign == '"' ? std::string(2, Sign) : std::string(1, Sign);
    return Result + "\"";
}

std::string Undivided(std::string Cell)
{
    for (char& Sign : Cell)
        if (Blanks.find(Sign) != std::string_view::npos)
            Sign = ' ';
    return Cell;
}

std::string Line(const std::vector<std::string>& Cells, char Divider,
                 std::string (*Written)(const std::string&))
{
    std::string Result;
    for (const std::string& Each : Cells)
        Result += (&Each == &Cells.front() ? std::string() : std::string(1, Divider)) +
                  Written(Plain(Each));
    return Result + "\n";
}

} // namespace

std::string CsvLine(const std::vector<std::string>& Cells)
{
    return Line(Cells, ';', InQuotes);
}

std::string TabLine(const std::vector<std::string>& Cells)
{
    return Line(Cells, '\t', [](const std::string& Cell) { return Undivided(Cell); });
}

} // namespace orvane
