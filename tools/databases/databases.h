#pragma once

#include <filesystem>

namespace orvane::tools {

// Makes the database files of a program's folder from a folder of tables. With KeepCrafters, the
// settings and the orders that are there already stay. SourceError tells what is wrong with a
// table.
void MakeDatabases(const std::filesystem::path& Data, const std::filesystem::path& Folder,
                   bool KeepCrafters);

} // namespace orvane::tools
