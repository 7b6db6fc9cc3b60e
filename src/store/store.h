#pragma once

#include "store/recordset.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace orvane {

class Store;

// An open database. The end of the handle ends its reading; sets already opened stay readable.
class Database
{
  public:
    Database(Store& Owner, std::shared_ptr<Connection> Base);
    ~Database();
    Database(Database&& Other) noexcept;

    Recordset OpenRecordset(std::string_view Sql) const;

    // DELETE * FROM table WHERE condition.
    void Execute(std::string_view Sql) const;

    // Runs Action with all rows that it changes in this file as one durable write: all of them, or,
    // when it fails or the process ends, none. Sets that were changed in a write that failed show
    // what isn't stored. Linked tables are not to be met here for the first time.
    void Transaction(const std::function<void()>& Action) const;

    bool HasTable(const std::string& Name) const;

    // Where a linked table comes from: ";DATABASE=" and the full path of the file.
    std::string LinkConnect(const std::string& Table) const;
    void SetLinkConnect(const std::string& Table, const std::string& Connect) const;
    void UseLinkConnect(const std::string& Table, const std::string& Connect) const; // this run
    void RefreshLink(const std::string& Table) const;

  private:
    Store* Owner;
    std::shared_ptr<Connection> Base;
};

// Opens databases. Handles on one file share its connection, and a file that nobody has open keeps
// its connection for the next event, as long as nobody else changes the file.
class Store
{
  public:
    // Failure: DatabaseMissing, NotADatabase, DatabaseUnreadable.
    Database Open(const std::filesystem::path& File);

  private:
    friend class Database;

    struct Entry
    {
        std::shared_ptr<Connection> Base;
        std::shared_ptr<RunLinks> Links = std::make_shared<RunLinks>();
        int Handles = 0;
    };

    void Release(const Connection& Base) noexcept;

    // A write to one file may concern a table that another connection reads through a link.
    void EndAllReading();

    std::map<std::filesystem::path, Entry> Connections;
};

} // namespace orvane
