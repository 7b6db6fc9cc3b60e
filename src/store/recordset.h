#pragma once

#include "base/failure.h"
#include "store/connection.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace orvane {

// The result of a query: a snapshot of its rows, walked from the first to the end. Columns are read
// by name: the whole name, or the short one behind the dot when only one column has it.
class Recordset
{
  public:
    Recordset(std::shared_ptr<Connection> Base, RowSet Rows);

    // Zero or not zero is all that callers look at, as with any store.
    std::size_t RecordCount() const { return Rows.Rows.size(); }
    bool Eof() const { return At >= Rows.Rows.size(); }

    // Failure (FailureKind::NoRow) on an empty set; FailureKind::ChoiceMissing when the query
    // looked for an empty text.
    void MoveFirst();
    void MoveNext();
    void MoveTo(std::size_t Row); // from 0; at or behind RecordCount is the end

    // Cells of the present row. Text, Whole and Number fail on a null (FailureKind::NullValue);
    // Whole and Number also on a text that is no number.
    bool IsNull(std::string_view Name) const;
    std::string Text(std::string_view Name) const;
    std::string TextOrEmpty(std::string_view Name) const;
    double Number(std::string_view Name) const;
    std::int16_t Whole(std::string_view Name) const;

    // The present row, nulls and all. A row put together from it is the same one again.
    Assignments Row() const;

    // Changing: Edit or AddNew, then Set for each column, then Update, which stores the row at once
    // (in a transaction, with it) and tells its key. Moving away before Update drops the change. A
    // refused value leaves the stored row as it was.
    void Edit();
    void AddNew();
    void Set(std::string_view Name, std::string Text);
    void Set(std::string_view Name, std::int64_t Number);
    void Set(const Assignments& Cells); // several columns, as Row tells them
    std::int64_t Update();

  private:
    enum class Mode { Reading, Editing, Adding };

    const Value& Cell(std::string_view Name) const;
    std::size_t ColumnAt(std::string_view Name) const;
    void Begin(Mode Wanted);
    void DropChanges();
    void Put(std::string_view Name, Value Cell);

    // What this row is about, for a message: what the query looked for, and where.
    std::string Subject() const;
    std::string LookedFor() const;

    // About this row, or one of its columns.
    Failure About(FailureKind Kind, std::string_view Column = {}, std::string Cause = {}) const;

    std::shared_ptr<Connection> Base;
    RowSet Rows;
    std::size_t At = 0;
    Mode TheMode = Mode::Reading;
    Assignments Pending;
};

} // namespace orvane
