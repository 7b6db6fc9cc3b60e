#pragma once

#include "support/temp_folder.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace orvane {

// What a table holds, each cell in one form for both sides of a comparison: "-" for a null, 'text',
// x'bytes', and a number as itself.
struct Listed
{
    std::vector<std::string> Columns;
    std::vector<std::vector<std::string>> Rows;

    friend bool operator==(const Listed&, const Listed&) = default;
};
using ListedTables = std::map<std::string, Listed>;

// A link: its name, the file's name without a folder, its source.
using ListedLink = std::vector<std::string>;

// A Jet file of the tests: "types", "exemple/Panier".
std::filesystem::path JetFile(const std::string& Name);

// The lists beside it of what is in it.
ListedTables TablesToldOf(const std::string& Name);
std::vector<ListedLink> LinksToldOf(const std::string& Name);

// The type in Jet of each column of its table.
std::vector<std::string> JetTypesToldOf(const std::string& Name, const std::string& Table);

// One of our files, without the tables in which it keeps queries and links.
ListedTables TablesOf(const std::filesystem::path& File);
std::vector<ListedLink> LinksOf(const std::filesystem::path& File);

std::string ContentOf(const std::filesystem::path& File);

// The files of a folder with their contents.
std::map<std::string, std::string> Everything(const std::filesystem::path& Folder);

} // namespace orvane
