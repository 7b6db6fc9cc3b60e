#include "store/schema.h"

#include "base/below.h"
#include "base/text.h"
#include "store/sqlite_error.h"
#include "store/translation.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace orvane {

namespace {

std::string TableNamed(const std::string& File)
{
    return "SELECT name FROM " + File +
           ".sqlite_schema WHERE type = 'table' AND fold_case(name) = ?";
}

std::filesystem::path Full(const std::filesystem::path& File)
{
    return std::filesystem::absolute(File).lexically_normal();
}

} // namespace

Schema::Schema(SQLite::Database& Base, const std::filesystem::path& File, const RunLinks& Links)
    : Base(Base),
      File(Full(File)),
      Links(Links)
{
}

bool Schema::HasTable(const std::string& Name)
{
    return !FirstRow(TableNamed("main"), Name).empty();
}

bool Schema::Knows(const std::string& Name) const
{
    return Sources.contains(FoldedCase(Name));
}

const Source& Schema::Find(const std::string& Name)
{
    const auto [Place, IsNew] = Sources.try_emplace(FoldedCase(Name)); // empty for a circle to meet
    if (IsNew)
        try {
            Place->second = Load(Name);
        } catch (...) {
            Sources.erase(Place);
            throw;
        }
    return Place->second;
}

Assignments Schema::Converted(const std::string& Table, const Assignments& Row)
{
    const Source& From = Find(Table);
    Assignments Result;
    for (const auto& [Name, Cell] : Row) {
        const int At = FindColumn(From.Columns, From.Name, Name);
        if (At < 0)
            throw Failure(FailureKind::DatabaseIncomplete, Table + "." + Name);
        const auto Index = static_cast<std::size_t>(At);
        Result.emplace_back(From.Columns[Index], From.Kinds[Index].Convert(Cell));
    }
    return Result;
}

std::string Schema::LinkConnect(const std::string& Name)
{
    const auto Link = Entry("LinkedTables", "Connect", Name);
    if (Link.empty())
        throw Failure(FailureKind::DatabaseIncomplete, Name);
    const auto ForThisRun = Links.find(FoldedCase(Name));
    return ForThisRun == Links.end() ? Link[0] : ForThisRun->second;
}

std::vector<std::filesystem::path> Schema::LinkedFiles() const
{
    std::vector<std::filesystem::path> Files;
    for (const auto& [Path, Name] : Attached)
        Files.push_back(Path);
    return Files;
}

Failure Schema::FailureOf(const SQLite::Exception& Error)
{
    Failure Given = orvane::FailureOf(Error, File);
    switch (Given.Kind()) {
    case FailureKind::DatabaseIncomplete: // a column: its table and its name
        for (const auto& [Table, Path] : Linked)
            if (FoldedCase(Given.Subject()).starts_with(Table + "."))
                return orvane::FailureOf(Error, Path);
        break;
    case FailureKind::DatabaseLocked:
    case FailureKind::DatabaseUnreadable:
    case FailureKind::NotADatabase:
        try {
            CheckLinkedFiles();
        } catch (const Failure& OfLinked) {
            return OfLinked;
        }
        break;
    default:
        break;
    }
    return Given;
}

Source Schema::Load(const std::string& Name)
{
    const auto Table = FirstRow(TableNamed("main"), Name);
    const bool IsTable = !Table.empty();
    Source Result{IsTable ? Table[0] : MakeView(Name), {}, {}, {}, IsTable};
    SQLite::Statement Info(Base, "PRAGMA table_info(" + QuotedName(Result.Name) + ")");
    while (Info.executeStep()) {
        const std::string Column = Info.getColumn("name").getString();
        if (!IsTable && Column.starts_with(PlacePrefix)) {
            Result.Order.push_back(QuotedName(Column));
            continue;
        }
        Result.Columns.push_back(Column);
        Result.Kinds.emplace_back(Info.getColumn("type").getString());
    }
    if (IsTable)
        Result.Order.emplace_back("rowid");
    return Result;
}

std::string Schema::MakeView(const std::string& Name)
{
    if (const auto Saved = Entry("SavedQueries", "Nom, Texte", Name); !Saved.empty()) {
        const SourceFinder Tables = [this](const std::string& Each) -> const Source& {
            return Find(Each);
        };
        SQLite::Statement(Base, ViewOf(Saved[0], Saved[1], Tables)).exec();
        return Saved[0];
    }
    const auto Link = Entry("LinkedTables", "Nom, Source", Name);
    if (Link.empty())
        throw Failure(FailureKind::DatabaseIncomplete, Name);
    const std::string Connect = LinkConnect(Name);
    const std::filesystem::path Path =
        Full(Connect.starts_with(ConnectPrefix) ? Connect.substr(ConnectPrefix.size()) : Connect);
    Translated(Path, [&] {
        const std::string Linked = Attach(Path);
        const auto Table = FirstRow(TableNamed(Linked), Link[1]);
        if (Table.empty())
            throw Failure(FailureKind::DatabaseIncomplete, Link[1]);
        Base.exec("CREATE TEMP VIEW IF NOT EXISTS " + QuotedName(Link[0]) + " AS SELECT rowid AS " +
                  QuotedName(PlacePrefix) + ", * FROM " + Linked + "." + QuotedName(Table[0]));
    });
    Linked[FoldedCase(Name)] = Path;
    return Link[0];
}

std::string Schema::Attach(const std::filesystem::path& Path)
{
    if (!StaysBelow(File.parent_path(), Path))
        throw Failure(FailureKind::OutsideFolder, DisplayName(Path), Path.string());
    RequireFile(Path);
    if (const auto Known = Attached.find(Path); Known != Attached.end())
        return Known->second;
    const std::string Alias = "link" + std::to_string(Attached.size());
    SQLite::Statement Statement(Base, "ATTACH ? AS " + Alias);
    Statement.bind(1, Path.string());
    Statement.exec();
    return Attached.emplace(Path, Alias).first->second;
}

void Schema::CheckLinkedFiles()
{
    for (const auto& Each : Attached)
        Translated(Each.first, [&] {
            const std::string Result =
                Base.execAndGet("PRAGMA " + Each.second + ".quick_check(1)").getString();
            if (Result != "ok")
                throw Failure(FailureKind::DatabaseUnreadable, DisplayName(Each.first), Result);
        });
}

std::vector<std::string> Schema::FirstRow(const std::string& Sql, const std::string& Name)
{
    SQLite::Statement Statement(Base, Sql);
    Statement.bind(1, FoldedCase(Name));
    std::vector<std::string> Row;
    if (Statement.executeStep())
        for (int i = 0; i < Statement.getColumnCount(); ++i)
            Row.push_back(Statement.getColumn(i).getString());
    return Row;
}

std::vector<std::string> Schema::Entry(const std::string& Table, const std::string& Columns,
                                       const std::string& Name)
{
    return HasTable(Table)
               ? FirstRow("SELECT " + Columns + " FROM " + Table + " WHERE fold_case(Nom) = ?",
                          Name)
               : std::vector<std::string>{};
}

} // namespace orvane
