#pragma once

#include "store/link.h"
#include "store/source.h"
#include "store/value.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// The rows of a query, all read: walking and changing them needs no open cursor.
struct RowSet
{
    std::shared_ptr<const ColumnNames> Columns;
    std::string Source;                   // what was selected from
    std::string Table;                    // set when the rows can be changed
    std::vector<std::vector<Value>> Rows; // in the order of Columns
    std::vector<std::int64_t> Keys;       // row numbers, when Table is set
    std::vector<std::string> Looked;      // the values that the query looked for
};

// One open file. All handles on the same file share it, so that a nested handler never waits for a
// lock of its caller. From the first query until Rest() everything is read in one transaction; a
// write ends it, is durable when the call returns, and reading starts afresh.
class Connection
{
  public:
    // BeforeWrite runs before each write; Links outlive the connections of a run. Failure:
    // DatabaseMissing, NotADatabase, DatabaseUnreadable.
    explicit Connection(
        std::filesystem::path File, std::function<void()> BeforeWrite = [] {},
        std::shared_ptr<RunLinks> Links = std::make_shared<RunLinks>());
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    const std::filesystem::path& File() const;

    RowSet Select(std::string_view Sql);
    void Delete(std::string_view Sql);

    // Runs Action with all that it writes here as one durable write: whole, or, when it fails or
    // the process ends, not at all. A query in it sees what it has written.
    void Transaction(const std::function<void()>& Action);

    bool HasTable(const std::string& Name);

    // Values are converted to the columns' kinds; Insert tells the row's key, Change what it
    // stored. A refused value leaves the row as it was.
    std::int64_t Insert(const std::string& Table, const Assignments& Row);
    Assignments Change(const std::string& Table, std::int64_t Key, const Assignments& Row);

    // ";DATABASE=" and the full path of the file that a linked table comes from.
    std::string LinkConnect(const std::string& Name);
    void SetLinkConnect(const std::string& Name, const std::string& Connect);

    // The same for this run only: the file stays as it is.
    void UseLinkConnect(const std::string& Name, const std::string& Connect);

    // Connects the linked table again. Failure when the file or the table isn't there.
    void RefreshLink(const std::string& Name);

    // Ends the read transaction; the next query begins another one.
    void EndReading();

    // Ends the read transaction for good; statements stay prepared for the next use.
    void Rest();

    // Whether the files behind are the same, unchanged by others, as when the connection last
    // rested.
    bool IsFresh() const;

  private:
    struct Inside;
    std::unique_ptr<Inside> In;
};

} // namespace orvane
