#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvane::tools {

// Whatever is wrong with the sources; the text, in French, is for the person who keeps them.
class SourceError : public std::runtime_error
{
  public:
    using std::runtime_error::runtime_error;
};

// A tab-separated table whose first row names the columns. Lines that are empty or begin with #
// don't count.
struct TsvTable
{
    struct Row
    {
        std::string Place; // file and line, for messages
        std::vector<std::string> Cells;
    };

    std::vector<std::string> Columns;
    std::vector<Row> Rows;
};

// SourceError for a missing file or a row with another number of cells than there are columns.
TsvTable ReadTsv(const std::filesystem::path& File);

} // namespace orvane::tools
