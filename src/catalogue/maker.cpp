#include "catalogue/maker.h"

#include "catalogue/declaration.h"
#include "store/binding.h"
#include "store/file_version.h"
#include "store/guard.h"
#include "store/link.h"
#include "store/schema.h"
#include "store/sql_text.h"
#include "store/sqlite_error.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <map>

namespace orvane {

namespace {

std::filesystem::path Unfinished(std::filesystem::path File)
{
    return File += ".new";
}

} // namespace

struct DatabaseMaker::Inside
{
    explicit Inside(std::filesystem::path Path)
        : File(std::move(Path)),
          Base((std::filesystem::remove(Unfinished(File)), Unfinished(File).string()),
               SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE),
          Transaction(Base)
    {
        Distrust(Base);
        Base.exec("PRAGMA user_version = " + std::to_string(FileVersion));
    }

    ~Inside()
    {
        std::error_code Error;
        if (!Finished)
            std::filesystem::remove(Unfinished(File), Error);
    }

    std::filesystem::path File;
    SQLite::Database Base;
    SQLite::Transaction Transaction;
    std::map<std::string, SQLite::Statement> Statements;
    bool Finished = false;
};

DatabaseMaker::DatabaseMaker(std::filesystem::path File, const DatabaseDefinition& Definition)
{
    const auto Path = File;
    Translated(Path, [&] {
        In = std::make_unique<Inside>(std::move(File));
        for (const TableDefinition& Table : Definition.Tables)
            AddTable(Table);
        if (!Definition.Queries.empty())
            In->Base.exec("CREATE TABLE SavedQueries (Nom TEXT PRIMARY KEY, Texte TEXT NOT NULL)");
        for (const QueryDefinition& Query : Definition.Queries) {
            SQLite::Statement Insertion(In->Base, "INSERT INTO SavedQueries VALUES (?, ?)");
            Insertion.bind(1, Query.Name);
            Insertion.bind(2, Query.Sql);
            Insertion.exec();
        }
        if (!Definition.Links.empty())
            In->Base.exec("CREATE TABLE LinkedTables "
                          "(Nom TEXT PRIMARY KEY, Connect TEXT NOT NULL, Source TEXT NOT NULL)");
        for (const LinkDefinition& Link : Definition.Links) {
            SQLite::Statement Insertion(In->Base, "INSERT INTO LinkedTables VALUES (?, ?, ?)");
            Insertion.bind(1, Link.Name);
            Insertion.bind(2, ConnectOf(std::filesystem::absolute(Path.parent_path() / Link.File)));
            Insertion.bind(3, Link.Source);
            Insertion.exec();
        }
    });
}

DatabaseMaker::~DatabaseMaker() = default;

void DatabaseMaker::AddTable(const TableDefinition& Table)
{
    Translated(In->File, [&] { In->Base.exec(MakingOf(Table)); });
}

void DatabaseMaker::Insert(const TableDefinition& Table, const std::vector<std::string>& Columns,
                           const std::vector<Value>& Row)
{
    if (Row.size() != Columns.size())
        throw Failure(FailureKind::Program, Table.Name, "a row with another number of cells");
    Translated(In->File, [&] {
        std::string Names;
        std::string Marks;
        for (const std::string& Column : Columns) {
            Names += (Names.empty() ? "" : ", ") + QuotedName(Column);
            Marks += Marks.empty() ? "?" : ", ?";
        }
        const std::string Sql =
            "INSERT INTO " + QuotedName(Table.Name) + " (" + Names + ") VALUES (" + Marks + ")";
        auto Known = In->Statements.find(Sql);
        if (Known == In->Statements.end())
            Known = In->Statements.emplace(Sql, SQLite::Statement(In->Base, Sql)).first;
        SQLite::Statement& Insertion = Known->second;
        Insertion.tryReset();
        for (std::size_t i = 0; i < Row.size(); ++i) {
            const auto Definition =
                std::ranges::find(Table.Columns, Columns[i], &ColumnDefinition::Name);
            const auto Type =
                Definition == Table.Columns.end() ? ColumnType::Text : Definition->Type;
            BindValue(Insertion, static_cast<int>(i) + 1,
                      ColumnKind(DeclaredType(Type)).Convert(Row[i]));
        }
        Insertion.exec();
    });
}

void DatabaseMaker::Finish()
{
    Translated(In->File, [&] {
        In->Statements.clear();
        In->Transaction.commit();
        In->Finished = true;
    });
    const auto File = In->File;
    In = nullptr;
    std::filesystem::rename(Unfinished(File), File);
}

} // namespace orvane
