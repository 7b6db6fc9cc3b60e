#include "store/recordset.h"

#include "base/number_text.h"
#include "store/sqlite_error.h"

#include <algorithm>
#include <utility>

namespace orvane {

Recordset::Recordset(std::shared_ptr<Connection> Base, RowSet Rows)
    : Base(std::move(Base)),
      Rows(std::move(Rows))
{
}

void Recordset::MoveFirst()
{
    if (Rows.Rows.empty()) {
        const bool ChoiceMissing = std::ranges::find(Rows.Looked, "") != Rows.Looked.end();
        if (ChoiceMissing)
            throw Failure(FailureKind::ChoiceMissing, LookedFor(), "no row in " + Rows.Source);
        throw About(FailureKind::NoRow, {}, "no row in " + Rows.Source);
    }
    At = 0;
    DropChanges();
}

void Recordset::MoveNext()
{
    DropChanges();
    if (!Eof())
        ++At;
}

void Recordset::MoveTo(std::size_t Row)
{
    DropChanges();
    At = std::min(Row, Rows.Rows.size());
}

bool Recordset::IsNull(std::string_view Name) const
{
    return Cell(Name).IsNull();
}

std::string Recordset::Text(std::string_view Name) const
{
    const Value& Given = Cell(Name);
    if (Given.IsNull())
        throw About(FailureKind::NullValue, Name, "null in " + Rows.Source);
    return Given.ToText();
}

std::string Recordset::TextOrEmpty(std::string_view Name) const
{
    return Cell(Name).ToText();
}

double Recordset::Number(std::string_view Name) const
{
    if (const auto Number = DoubleFromText(Text(Name)))
        return *Number;
    throw About(FailureKind::NullValue, Name, "not a number");
}

std::int16_t Recordset::Whole(std::string_view Name) const
{
    if (const auto Number = Entier16FromText(Text(Name)))
        return *Number;
    throw About(FailureKind::NullValue, Name, "not a number");
}

Assignments Recordset::Row() const
{
    if (Eof())
        throw About(FailureKind::NoRow);
    Assignments Cells;
    for (std::size_t i = 0; i < Rows.Columns->Count(); ++i)
        Cells.emplace_back((*Rows.Columns)[i], Rows.Rows[At][i]);
    return Cells;
}

void Recordset::Edit()
{
    if (Eof())
        throw About(FailureKind::NoRow);
    Begin(Mode::Editing);
}

void Recordset::AddNew()
{
    Begin(Mode::Adding);
}

void Recordset::Set(std::string_view Name, std::string Text)
{
    Put(Name, Value(std::move(Text)));
}

void Recordset::Set(std::string_view Name, std::int64_t Number)
{
    Put(Name, Value(Number));
}

void Recordset::Set(const Assignments& Cells)
{
    for (const auto& [Name, Given] : Cells)
        Put(Name, Given);
}

std::int64_t Recordset::Update()
{
    const Mode Done = std::exchange(TheMode, Mode::Reading);
    const Assignments Row = std::exchange(Pending, {});
    if (Done == Mode::Adding)
        return Base->Insert(Rows.Table, Row);
    if (Done == Mode::Reading)
        throw Failure(FailureKind::Program, Rows.Source, "no change has begun");
    for (const auto& [Name, Stored] : Base->Change(Rows.Table, Rows.Keys[At], Row))
        Rows.Rows[At][ColumnAt(Name)] = Stored;
    return Rows.Keys[At];
}

const Value& Recordset::Cell(std::string_view Name) const
{
    if (Eof())
        throw About(FailureKind::NoRow);
    return Rows.Rows[At][ColumnAt(Name)];
}

std::size_t Recordset::ColumnAt(std::string_view Name) const
{
    const int Found = Rows.Columns->Find(Name);
    if (Found < 0)
        throw Failure(FailureKind::DatabaseIncomplete, Rows.Source + "." + std::string(Name), {},
                      DisplayName(Base->File()));
    return static_cast<std::size_t>(Found);
}

void Recordset::Begin(Mode Wanted)
{
    if (Rows.Table.empty())
        throw Failure(FailureKind::Program, Rows.Source, "the rows of this query can't be changed");
    Pending.clear();
    TheMode = Wanted;
}

void Recordset::DropChanges()
{
    Pending.clear();
    TheMode = Mode::Reading;
}

void Recordset::Put(std::string_view Name, Value Cell)
{
    Pending.emplace_back((*Rows.Columns)[ColumnAt(Name)], std::move(Cell));
}

std::string Recordset::LookedFor() const
{
    std::string Result;
    for (const std::string& Each : Rows.Looked)
        if (!Each.empty())
            Result += (Result.empty() ? "" : ", ") + Each;
    return Result;
}

std::string Recordset::Subject() const
{
    const std::string Values = LookedFor();
    if (Values.empty())
        return Rows.Source;
    const bool Telling = Values.find_first_not_of("0123456789, ") != std::string::npos;
    return Telling ? Values : Values + " (" + Rows.Source + ")"; // numbers alone tell nothing
}

Failure Recordset::About(FailureKind Kind, std::string_view Column, std::string Cause) const
{
    return {Kind, Subject() + (Column.empty() ? "" : ", " + std::string(Column)), std::move(Cause),
            DisplayName(Base->File())};
}

} // namespace orvane
