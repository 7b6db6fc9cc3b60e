#include "store/schema.h"

#include "base/text.h"
#include "store/link.h"
#include "store/sqlite_error.h"
#include "store/translation.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace orvane {

bool Schema::Knows(const std::string& Name) const
{
    return Sources.contains(FoldedCase(Name));
}

const Source& Schema::Find(const std::string& Name)
{
    const std::string Key = FoldedCase(Name);
    if (const auto Known = Sources.find(Key); Known != Sources.end())
        return Known->second;
    return Sources.emplace(Key, Load(Name)).first->second;
}

std::vector<std::pair<std::string, Value>>
Schema::Converted(const std::string& Table, const std::vector<std::pair<std::string, Value>>& Row)
{
    const Source& From = Find(Table);
    const std::vector<ColumnKind>& ColumnKinds = Kinds.at(FoldedCase(Table));
    std::vector<std::pair<std::string, Value>> Result;
    for (const auto& [Name, Cell] : Row) {
        const int At = FindColumn(From.Columns, From.Name, Name);
        if (At < 0)
            throw Failure(FailureKind::DatabaseIncomplete, Table + "." + Name);
        const auto Index = static_cast<std::size_t>(At);
        Result.emplace_back(From.Columns[Index], ColumnKinds[Index].Convert(Cell));
    }
    return Result;
}

std::string Schema::LinkConnect(const std::string& Name)
{
    const auto Row = HasTable("LinkedTables")
                         ? FirstRow("SELECT Connect FROM LinkedTables WHERE fold_case(Nom) = ?",
                                    FoldedCase(Name))
                         : std::vector<std::string>{};
    if (Row.empty())
        throw Failure(FailureKind::DatabaseIncomplete, DisplayName(File) + " : " + Name);
    return Row[0];
}

std::vector<std::filesystem::path> Schema::LinkedFiles() const
{
    std::vector<std::filesystem::path> Files;
    for (const auto& [Path, Name] : Attached)
        Files.push_back(Path);
    return Files;
}

void Schema::Refresh()
{
    Sources.clear();
    Kinds.clear();
    for (const auto& [Path, Name] : Attached)
        Base.exec("DETACH " + Name);
    Attached.clear();
}

Source Schema::Load(const std::string& Name)
{
    if (!Loading.insert(FoldedCase(Name)).second) // a saved query that rests on itself
        throw Failure(FailureKind::DatabaseIncomplete, DisplayName(File) + " : " + Name);
    struct Leave
    {
        std::set<std::string>& Names;
        std::string Name;
        ~Leave() { Names.erase(Name); }
    } const Done{Loading, FoldedCase(Name)};
    const auto Known =
        FirstRow("SELECT name, type FROM main.sqlite_schema WHERE type IN ('table', 'view') "
                 "AND fold_case(name) = ?",
                 FoldedCase(Name));
    if (!Known.empty())
        return LoadTable("main", Known[0], Known[1] == "view");
    if (HasTable("SavedQueries"))
        if (const auto Row = FirstRow(
                "SELECT Nom, Texte FROM SavedQueries WHERE fold_case(Nom) = ?", FoldedCase(Name));
            !Row.empty())
            return TranslateSavedQuery(
                Row[0], Tokenize(Row[1]),
                [this](const std::string& Table) -> const Source& { return Find(Table); });
    if (HasTable("LinkedTables"))
        if (const auto Row =
                FirstRow("SELECT Nom, Connect, Source FROM LinkedTables WHERE fold_case(Nom) = ?",
                         FoldedCase(Name));
            !Row.empty())
            return LoadLink(Row[0], Row[1], Row[2]);
    throw Failure(FailureKind::DatabaseIncomplete, DisplayName(File) + " : " + Name);
}

Source Schema::LoadTable(const std::string& Prefix, const std::string& Name, bool IsView)
{
    Source Result{Name, Prefix + "." + QuotedName(Name), {}, {}, !IsView};
    std::vector<ColumnKind> ColumnKinds;
    SQLite::Statement Info(Base, "PRAGMA " + Prefix + ".table_info(" + QuotedName(Name) + ")");
    while (Info.executeStep()) {
        Result.Columns.push_back(Info.getColumn("name").getString());
        ColumnKinds.push_back(ColumnKind::FromDeclaredType(Info.getColumn("type").getString()));
    }
    if (Result.Columns.empty())
        throw Failure(FailureKind::DatabaseIncomplete, Name);
    if (!IsView)
        Result.Order.emplace_back("rowid");
    if (Prefix == "main")
        Kinds[FoldedCase(Name)] = std::move(ColumnKinds);
    return Result;
}

Source Schema::LoadLink(const std::string& Name, const std::string& Connect,
                        const std::string& Table)
{
    const std::filesystem::path Path =
        Connect.starts_with(ConnectPrefix) ? Connect.substr(ConnectPrefix.size()) : Connect;
    std::error_code Error;
    if (!std::filesystem::exists(Path, Error)) // attaching would make it
        throw Failure(FailureKind::DatabaseMissing, DisplayName(Path), Path.string());
    auto Known = Attached.find(Path);
    if (Known == Attached.end()) {
        const std::string Alias = "link" + std::to_string(Attached.size());
        Translated(Path, [&] {
            SQLite::Statement Attach(Base, "ATTACH ? AS " + Alias);
            Attach.bind(1, Path.string());
            Attach.exec();
        });
        Known = Attached.emplace(Path, Alias).first;
    }
    Source Result = Translated(Path, [&] { return LoadTable(Known->second, Table, false); });
    Result.Name = Name;
    Result.IsTable = false;
    return Result;
}

bool Schema::HasTable(const std::string& Name)
{
    return !FirstRow("SELECT name FROM main.sqlite_schema WHERE type = 'table' AND name = ?", Name)
                .empty();
}

std::vector<std::string> Schema::FirstRow(const std::string& Sql, const std::string& Parameter)
{
    SQLite::Statement Statement(Base, Sql);
    Statement.bind(1, Parameter);
    std::vector<std::string> Row;
    if (Statement.executeStep())
        for (int i = 0; i < Statement.getColumnCount(); ++i)
            Row.push_back(Statement.getColumn(i).getString());
    return Row;
}

} // namespace orvane
