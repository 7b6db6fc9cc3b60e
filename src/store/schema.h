#pragma once

#include "base/failure.h"
#include "store/link.h"
#include "store/source.h"
#include "store/value.h"

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace SQLite {
class Database;
class Exception;
} // namespace SQLite

namespace orvane {

// What a file holds, read as it is asked for: tables, saved queries (table SavedQueries), linked
// tables (table LinkedTables). The last two become temporary views of the connection, since a view
// in the file can't reach another file. Names are found whatever their case.
class Schema
{
  public:
    Schema(SQLite::Database& Base, const std::filesystem::path& File, const RunLinks& Links);

    // Whether the file itself has a table of that name.
    bool HasTable(const std::string& Name);

    // Whether Find has been asked for this name already.
    bool Knows(const std::string& Name) const;

    // May attach the file of a linked table, which must not happen inside a transaction.
    // Failure (FailureKind::DatabaseIncomplete) when nothing has that name.
    const Source& Find(const std::string& Name);

    // The values as the table's columns hold them, under the columns' own names.
    Assignments Converted(const std::string& Table, const Assignments& Row);

    std::string LinkConnect(const std::string& Name);

    // The files that linked tables have been attached from.
    std::vector<std::filesystem::path> LinkedFiles() const;

    // What an error means that came while the file was read or written. SQLite doesn't tell which
    // file it is about: it may be a linked one.
    Failure FailureOf(const SQLite::Exception& Error);

  private:
    Source Load(const std::string& Name);

    // Makes the temporary view that a saved query or a linked table is read through. Its own name.
    std::string MakeView(const std::string& Name);

    // The name in SQL of a linked file, which is attached when it isn't yet. Failure
    // (FailureKind::OutsideFolder) unless it stays below the folder of the file that links it.
    std::string Attach(const std::filesystem::path& Path);

    // Fails when a linked file is locked or damaged, read by itself.
    void CheckLinkedFiles();

    // The first row of a query with a name, folded, as its parameter; of one of the store's own
    // tables, which a file may lack.
    std::vector<std::string> FirstRow(const std::string& Sql, const std::string& Name);
    std::vector<std::string> Entry(const std::string& Table, const std::string& Columns,
                                   const std::string& Name);

    SQLite::Database& Base;
    std::filesystem::path File;
    const RunLinks& Links;
    std::map<std::string, Source> Sources;                 // by folded name
    std::map<std::filesystem::path, std::string> Attached; // file and its name in SQL
    std::map<std::string, std::filesystem::path> Linked;   // folded table and its file
};

} // namespace orvane
