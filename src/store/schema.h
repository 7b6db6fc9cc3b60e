#pragma once

#include "store/source.h"
#include "store/value.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace SQLite {
class Database;
}

namespace orvane {

// What a file holds, read as it is asked for: tables, saved queries (table SavedQueries), linked
// tables (table LinkedTables). Names are found whatever their case.
class Schema
{
  public:
    Schema(SQLite::Database& Base, const std::filesystem::path& File) : Base(Base), File(File) {}

    // Whether Find has been asked for this name already.
    bool Knows(const std::string& Name) const;

    // May attach the file of a linked table, which must not happen inside a transaction.
    // Failure (Kind::DatabaseIncomplete) when nothing has that name.
    const Source& Find(const std::string& Name);

    // The values as the table's columns hold them, under the columns' own names.
    std::vector<std::pair<std::string, Value>>
    Converted(const std::string& Table, const std::vector<std::pair<std::string, Value>>& Row);

    std::string LinkConnect(const std::string& Name);

    // The files that linked tables have been attached from.
    std::vector<std::filesystem::path> LinkedFiles() const;

    // Forgets everything, attached files included.
    void Refresh();

  private:
    Source Load(const std::string& Name);
    Source LoadTable(const std::string& Prefix, const std::string& Name, bool IsView);
    Source LoadLink(const std::string& Name, const std::string& Connect, const std::string& Table);
    bool HasTable(const std::string& Name);
    std::vector<std::string> FirstRow(const std::string& Sql, const std::string& Parameter);

    SQLite::Database& Base;
    const std::filesystem::path& File;
    std::map<std::string, Source> Sources;                 // by folded name
    std::map<std::string, std::vector<ColumnKind>> Kinds;  // by folded table name
    std::set<std::string> Loading;                         // folded names, while they are read
    std::map<std::filesystem::path, std::string> Attached; // file and its name in SQL
};

} // namespace orvane
