#include "catalogue/upgrade.h"

#include "catalogue/declaration.h"
#include "store/file_version.h"
#include "store/guard.h"
#include "store/sql_text.h"
#include "store/sqlite_error.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>

namespace orvane {

namespace {

constexpr int BusyMilliseconds = 250;

// The columns as the file declares them, all but the counter's own type.
std::string Declarations(SQLite::Database& Base, const std::string& Table,
                         const std::string& Counter)
{
    std::string Sql;
    SQLite::Statement Info(Base, "PRAGMA table_info(" + QuotedName(Table) + ")");
    while (Info.executeStep()) {
        const std::string Name = Info.getColumn("name").getString();
        Sql += (Sql.empty() ? "" : ", ") + QuotedName(Name) + " ";
        if (Name == Counter) {
            Sql += DeclaredType(ColumnType::Counter);
            continue;
        }
        Sql += Info.getColumn("type").getString();
        if (Info.getColumn("notnull").getInt() != 0)
            Sql += " NOT NULL";
        if (!Info.getColumn("dflt_value").isNull())
            Sql += " DEFAULT (" + Info.getColumn("dflt_value").getString() + ")";
    }
    return Sql;
}

// What goes with a table when it is dropped.
std::vector<std::string> IndexesAndTriggers(SQLite::Database& Base, const std::string& Table)
{
    std::vector<std::string> Sql;
    SQLite::Statement Query(Base,
                            "SELECT sql FROM sqlite_schema WHERE type IN ('index', 'trigger') "
                            "AND tbl_name = ? AND sql IS NOT NULL");
    Query.bind(1, Table);
    while (Query.executeStep())
        Sql.push_back(Query.getColumn(0).getString());
    return Sql;
}

void Rebuild(SQLite::Database& Base, const std::string& Table, const std::string& Counter)
{
    const std::string Old = QuotedName(Table);
    const std::string New = QuotedName(Table + "_à_jour");
    const std::vector<std::string> Kept = IndexesAndTriggers(Base, Table);
    Base.exec("CREATE TABLE " + New + " (" + Declarations(Base, Table, Counter) + ")");
    Base.exec("INSERT INTO " + New + " SELECT * FROM " + Old + " ORDER BY rowid");
    Base.exec("DROP TABLE " + Old);
    Base.exec("ALTER TABLE " + New + " RENAME TO " + Old);
    for (const std::string& Sql : Kept)
        Base.exec(Sql);
}

} // namespace

void BringUpToDate(const std::filesystem::path& File, const DatabaseDefinition& Definition)
try {
    if (FileVersionOf(File).value_or(FileVersion) >= FileVersion)
        return;
    SQLite::Database Base(File.string(), SQLite::OPEN_READWRITE, BusyMilliseconds);
    Distrust(Base);
    Base.exec("PRAGMA legacy_alter_table = ON"); // a view of the file keeps its text
    SQLite::Transaction Transaction(Base, SQLite::TransactionBehavior::IMMEDIATE);
    for (const TableDefinition& Table : Definition.Tables) {
        const auto Counter =
            std::ranges::find(Table.Columns, ColumnType::Counter, &ColumnDefinition::Type);
        if (Counter != Table.Columns.end() && Base.tableExists(Table.Name))
            Rebuild(Base, Table.Name, Counter->Name);
    }
    Base.exec("PRAGMA user_version = " + std::to_string(FileVersion));
    Transaction.commit();
} catch (const SQLite::Exception&) {
    // the older form is read and written as before
}

void EnsureTable(const std::filesystem::path& File, const TableDefinition& Table)
{
    Translated(File, [&] {
        SQLite::Database Base(File.string(), SQLite::OPEN_READWRITE, BusyMilliseconds);
        Distrust(Base);
        SQLite::Transaction Transaction(Base, SQLite::TransactionBehavior::IMMEDIATE);
        if (Base.execAndGet("PRAGMA user_version").getInt() > FileVersion)
            throw Failure(FailureKind::DatabaseNewer, DisplayName(File));
        if (!Base.tableExists(Table.Name))
            Base.exec(MakingOf(Table));
        Transaction.commit();
    });
}

} // namespace orvane
