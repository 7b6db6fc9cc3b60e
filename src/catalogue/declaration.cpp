#include "catalogue/declaration.h"

#include "store/sql_text.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

// Columns that queries look names up in.
bool IsSearched(const ColumnDefinition& Column)
{
    constexpr std::array Names{"Nom", "NomControl", "Acheteur", "Bonus"};
    return Column.Type == ColumnType::Reference ||
           std::ranges::find(Names, Column.Name) != Names.end();
}

} // namespace

const char* DeclaredType(ColumnType Type)
{
    switch (Type) {
    case ColumnType::Key:
        return "INTEGER PRIMARY KEY";
    case ColumnType::Counter:
        return "INTEGER PRIMARY KEY AUTOINCREMENT";
    case ColumnType::Whole:
    case ColumnType::Reference:
        return "INTEGER";
    case ColumnType::Decimal:
        return "DECIMAL(19,4)";
    case ColumnType::Numeric:
        return "NUMERIC";
    case ColumnType::Double:
        return "DOUBLE";
    case ColumnType::Blob:
        return "BLOB";
    case ColumnType::Text:
        break;
    }
    return "TEXT";
}

std::string MakingOf(const TableDefinition& Table)
{
    std::string Columns;
    std::string Indexes;
    for (const ColumnDefinition& Column : Table.Columns) {
        Columns += (Columns.empty() ? "" : ", ") + QuotedName(Column.Name) + " " +
                   DeclaredType(Column.Type);
        if (IsSearched(Column))
            Indexes += "; CREATE INDEX " + QuotedName(Table.Name + "." + Column.Name) + " ON " +
                       QuotedName(Table.Name) + " (" + QuotedName(Column.Name) +
                       (Column.Type == ColumnType::Text ? " COLLATE NOCASE)" : ")");
    }
    return "CREATE TABLE " + QuotedName(Table.Name) + " (" + Columns + ")" + Indexes;
}

} // namespace orvane
