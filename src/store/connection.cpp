#include "store/connection.h"

#include "base/file_stamp.h"
#include "base/text.h"
#include "store/binding.h"
#include "store/file_version.h"
#include "store/functions.h"
#include "store/guard.h"
#include "store/query_shape.h"
#include "store/schema.h"
#include "store/sqlite_error.h"
#include "store/translation.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace orvane {

namespace {

constexpr int BusyMilliseconds = 250;

Value ValueAt(SQLite::Statement& Statement, int At)
{
    const SQLite::Column Cell = Statement.getColumn(At);
    if (Cell.isNull())
        return {};
    if (Cell.isInteger())
        return Cell.getInt64();
    if (Cell.isFloat())
        return Cell.getDouble();
    return Cell.isBlob() ? Value(Blob{Cell.getString()}) : Value(Cell.getString());
}

std::size_t BytesOf(const std::vector<Value>& Row)
{
    std::size_t Bytes = Row.size() * sizeof(Value);
    for (const Value& Cell : Row)
        if (const auto* Text = std::get_if<std::string>(&Cell.Raw()))
            Bytes += Text->size();
        else if (const auto* Binary = std::get_if<Blob>(&Cell.Raw()))
            Bytes += Binary->Content.size();
    return Bytes;
}

// What equal rows have in common: their values with case folded away.
std::string DistinctKey(const std::vector<Value>& Row)
{
    std::string Key;
    for (const Value& Cell : Row) {
        const std::string Text = FoldedCase(Cell.ToText());
        Key += (Cell.IsNull() ? "-" : "+") + std::to_string(Text.size()) + ':' + Text;
    }
    return Key;
}

// Ends a statement's use by any way: one that waits for a lock would hold its others.
struct InUse
{
    explicit InUse(SQLite::Statement& Which) : Which(Which) {}
    ~InUse() { Which.tryReset(); }
    InUse(const InUse&) = delete;
    InUse& operator=(const InUse&) = delete;

    SQLite::Statement& Which;
};

// A flag that is set for the length of a block.
struct Switched
{
    explicit Switched(bool& Flag) : Flag(Flag) { Flag = true; }
    ~Switched() { Flag = false; }
    Switched(const Switched&) = delete;
    Switched& operator=(const Switched&) = delete;

    bool& Flag;
};

struct Prepared
{
    Prepared(SQLite::Database& Base, Translation Given)
        : Statement(Base, Given.Sql),
          Query(std::move(Given)),
          Columns(std::make_shared<const ColumnNames>(Query.Columns, Query.Source))
    {
    }

    SQLite::Statement Statement;
    Translation Query;
    std::shared_ptr<const ColumnNames> Columns;
};

} // namespace

struct Connection::Inside
{
    Inside(std::filesystem::path Path, std::function<void()> BeforeWriteRuns,
           std::shared_ptr<RunLinks> LinksOfRun)
        : File(std::move(Path)),
          BeforeWrite(std::move(BeforeWriteRuns)),
          Links(std::move(LinksOfRun)),
          Base(File.string(), SQLite::OPEN_READWRITE, BusyMilliseconds),
          Work(Base),
          Schema(Base, File, *Links)
    {
        Distrust(Base);
        RegisterFunctions(Base);
        Base.exec(
            "PRAGMA schema_version"); // reads the header: a file that is no database fails here
    }

    // Runs Action, with its failures about the file that they concern.
    template <class Function>
    auto Do(Function Action)
    {
        try {
            return Action();
        } catch (const SQLite::Exception& Error) {
            throw Schema.FailureOf(Error);
        } catch (const Failure& Given) {
            throw Given.In(DisplayName(File));
        }
    }

    // Ends reading, if it goes on: nothing may be attached or written inside it.
    void EndReading()
    {
        if (Reading)
            Base.exec("COMMIT");
        Reading = false;
    }

    Prepared& Prepare(Tokens Query, const std::string& Shape)
    {
        if (const auto Known = Statements.find(Shape); Known != Statements.end())
            return *Known->second;
        const SourceFinder Find = [this](const std::string& Name) -> const Source& {
            if (!Schema.Knows(Name))
                EndReading(); // a linked table may have to be attached
            return Schema.Find(Name);
        };
        auto Made = std::make_unique<Prepared>(Base, TranslateSelect(Query, Find));
        return *Statements.emplace(Shape, std::move(Made)).first->second;
    }

    // Runs a write as one durable transaction, or as a part of the one that goes on.
    void Write(const std::function<void()>& Action)
    {
        Work.Renew();
        if (Writing)
            return Action();
        BeforeWrite();
        EndReading();
        SQLite::Transaction Transaction(Base, SQLite::TransactionBehavior::IMMEDIATE);
        if (Base.execAndGet("PRAGMA user_version").getInt() > FileVersion)
            throw Failure(FailureKind::DatabaseNewer, DisplayName(File));
        const Switched Now(Writing);
        Action();
        Transaction.commit();
    }

    void Run(const std::string& Sql, const std::vector<Value>& Parameters)
    {
        SQLite::Statement Statement(Base, Sql);
        for (std::size_t i = 0; i < Parameters.size(); ++i)
            BindValue(Statement, static_cast<int>(i) + 1, Parameters[i]);
        Statement.exec();
    }

    std::filesystem::path File;
    std::function<void()> BeforeWrite;
    std::shared_ptr<RunLinks> Links;
    SQLite::Database Base;
    Allowance Work;
    orvane::Schema Schema;
    std::unordered_map<std::string, std::unique_ptr<Prepared>> Statements;
    std::map<std::filesystem::path, std::optional<FileStamp>> Stamps;
    bool Reading = false;
    bool Writing = false; // in a transaction that writes
};

Connection::Connection(std::filesystem::path File, std::function<void()> BeforeWrite,
                       std::shared_ptr<RunLinks> Links)
{
    RequireFile(File);
    const auto Path = File;
    Translated(Path, [&] {
        In = std::make_unique<Inside>(std::move(File), std::move(BeforeWrite), std::move(Links));
    });
}

Connection::~Connection() = default;

const std::filesystem::path& Connection::File() const
{
    return In->File;
}

RowSet Connection::Select(std::string_view Sql)
{
    return In->Do([&] {
        const std::vector<Token> Query = Tokenize(Sql);
        std::vector<Value> Parameters;
        In->Work.Renew();
        const std::string Shape = ShapeOf(Query, Parameters);
        Prepared& Ready = In->Prepare(Query, Shape);
        if (!In->Reading && !In->Writing) {
            In->Base.exec("BEGIN");
            In->Reading = true;
        }
        RowSet Result{Ready.Columns, {}, Ready.Query.Table, {}, {}, LookedFor(Query)};
        SQLite::Statement& Statement = Ready.Statement;
        const InUse Use(Statement);
        for (std::size_t i = 0; i < Parameters.size(); ++i)
            BindValue(Statement, static_cast<int>(i) + 1, Parameters[i]);
        std::unordered_set<std::string> Seen;
        const int Count = static_cast<int>(Ready.Columns->Count());
        while (Statement.executeStep()) {
            std::vector<Value> Row;
            Row.reserve(static_cast<std::size_t>(Count));
            for (int i = 0; i < Count; ++i)
                Row.push_back(ValueAt(Statement, i));
            if (!In->Work.Spend(static_cast<std::int64_t>(BytesOf(Row))))
                throw Failure(FailureKind::Store, DisplayName(In->File), "too many rows");
            const bool LikeTheLast = !Result.Rows.empty() && Row == Result.Rows.back();
            if (Ready.Query.Distinct && (LikeTheLast || !Seen.insert(DistinctKey(Row)).second))
                continue;
            Result.Rows.push_back(std::move(Row));
            if (!Result.Table.empty())
                Result.Keys.push_back(Statement.getColumn(Count).getInt64());
        }
        Result.Source = Ready.Query.Source;
        return Result;
    });
}

void Connection::Delete(std::string_view Sql)
{
    In->Do([&] {
        const std::vector<Token> Query = Tokenize(Sql);
        std::vector<Value> Parameters;
        ShapeOf(Query, Parameters);
        const std::string Translation = TranslateDelete(
            Query, [&](const std::string& Name) -> const Source& { return In->Schema.Find(Name); });
        In->Write([&] { In->Run(Translation, Parameters); });
    });
}

void Connection::Transaction(const std::function<void()>& Action)
{
    In->Do([&] { In->Write(Action); });
}

bool Connection::HasTable(const std::string& Name)
{
    return In->Do([&] { return In->Schema.HasTable(Name); });
}

std::int64_t Connection::Insert(const std::string& Table, const Assignments& Row)
{
    return In->Do([&] {
        std::string Names;
        std::string Marks;
        std::vector<Value> Values;
        for (const auto& [Column, Cell] : In->Schema.Converted(Table, Row)) {
            Names += (Names.empty() ? "" : ", ") + QuotedName(Column);
            Marks += Marks.empty() ? "?" : ", ?";
            Values.push_back(Cell);
        }
        In->Write([&] {
            In->Run("INSERT INTO " + QuotedName(Table) + " (" + Names + ") VALUES (" + Marks + ")",
                    Values);
        });
        return In->Base.getLastInsertRowid();
    });
}

Assignments Connection::Change(const std::string& Table, std::int64_t Key, const Assignments& Row)
{
    return In->Do([&] {
        Assignments Stored = In->Schema.Converted(Table, Row);
        std::string Changes;
        std::vector<Value> Values;
        for (const auto& [Column, Cell] : Stored) {
            Changes += (Changes.empty() ? "" : ", ") + QuotedName(Column) + " = ?";
            Values.push_back(Cell);
        }
        if (Values.empty())
            return Stored;
        Values.emplace_back(Key);
        In->Write([&] {
            In->Run("UPDATE " + QuotedName(Table) + " SET " + Changes + " WHERE rowid = ?", Values);
            if (In->Base.getChanges() == 0)
                throw Failure(FailureKind::NoRow, Table, "the row is gone");
        });
        return Stored;
    });
}

std::string Connection::LinkConnect(const std::string& Name)
{
    return In->Do([&] { return In->Schema.LinkConnect(Name); });
}

void Connection::SetLinkConnect(const std::string& Name, const std::string& Connect)
{
    In->Do([&] {
        In->Schema.LinkConnect(Name); // fails for an unknown name
        In->Write([&] {
            In->Run("UPDATE LinkedTables SET Connect = ? WHERE fold_case(Nom) = ?",
                    {Connect, FoldedCase(Name)});
        });
        In->Links->erase(FoldedCase(Name));
    });
}

void Connection::UseLinkConnect(const std::string& Name, const std::string& Connect)
{
    (*In->Links)[FoldedCase(Name)] = Connect;
}

void Connection::RefreshLink(const std::string& Name)
{
    const auto File = In->File;
    Translated(File, [&] { // views and attached files go
        In = std::make_unique<Inside>(File, In->BeforeWrite, In->Links);
    });
    In->Do([&] { In->Schema.Find(Name); });
}

void Connection::EndReading()
{
    In->Do([&] { In->EndReading(); });
}

void Connection::Rest()
{
    EndReading();
    In->Stamps.clear();
    In->Stamps[In->File] = FileStampOf(In->File);
    for (const auto& Linked : In->Schema.LinkedFiles())
        In->Stamps[Linked] = FileStampOf(Linked);
}

bool Connection::IsFresh() const
{
    for (const auto& [File, Known] : In->Stamps)
        if (!Known || FileStampOf(File) != Known)
            return false;
    return true;
}

} // namespace orvane
