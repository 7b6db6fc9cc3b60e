#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::tools {

// A layout table as its editable file holds it: the columns of every layout table, a row a control.
struct LayoutFile
{
    std::vector<std::vector<std::string>> Rows;

    void Write(const std::filesystem::path& File) const;
};

// The columns, in the order of the schema.
std::vector<std::string> LayoutColumns();

} // namespace orvane::tools
