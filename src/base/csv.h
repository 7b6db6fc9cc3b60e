#pragma once

#include <string>
#include <string_view>
#include <vector>

// Rows for a spreadsheet as the French one opens them. Numbers come as they are shown, with a
// decimal comma. A cell that would be taken for a formula, and is no number, gets an apostrophe.
namespace orvane {

// A line divided by semicolons; a cell that holds one, a quote or the end of a line is quoted.
std::string CsvLine(const std::vector<std::string>& Cells);

// A line divided by tabs, for the clipboard; what would divide a cell is a blank.
std::string TabLine(const std::vector<std::string>& Cells);

// What a file begins with, so that its accents are read as such.
inline constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

} // namespace orvane
