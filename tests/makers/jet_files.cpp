#include "makers/jet_files.h"

#include "store/sql_text.h"
#include "store/value.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iterator>

namespace orvane {

namespace fs = std::filesystem;

namespace {

constexpr std::ptrdiff_t DigitsOfDouble = 15;

std::string ShownDouble(double Number)
{
    std::array<char, 64> Text{};
    return {Text.data(), std::to_chars(Text.begin(), Text.end(), Number).ptr};
}

// As the lists write it, with their escapes; nothing for a null.
std::optional<std::string> Plain(const std::string& Cell)
{
    if (Cell == "\\N")
        return {};
    std::string Result;
    for (std::size_t i = 0; i < Cell.size(); ++i) {
        if (Cell[i] != '\\') {
            Result += Cell[i];
            continue;
        }
        const char Sign = Cell[++i];
        Result += Sign == 't' ? '\t' : Sign == 'n' ? '\n' : Sign == 'r' ? '\r' : Sign;
    }
    return Result;
}

// An amount of the lists: past a double's digits a text, with a comma and without needless zeros.
std::string Amount(std::string Text)
{
    if (const auto Point = Text.find('.'); Point != std::string::npos) {
        Text.erase(std::max(Text.find_last_not_of('0') + 1, Point));
        if (Text.back() == '.')
            Text.pop_back();
    }
    const auto Digits = std::ranges::count_if(Text, [](char Sign) { return Sign >= '0'; });
    if (Digits <= DigitsOfDouble)
        return ShownDouble(std::stod(Text));
    std::ranges::replace(Text, '.', ',');
    return "'" + Text + "'";
}

std::string Told(const std::string& Cell, const std::string& Type)
{
    const auto Text = Plain(Cell);
    if (!Text)
        return "-";
    if (Type == "MONEY" || Type == "NUMERIC")
        return Amount(*Text);
    if (Type == "FLOAT" || Type == "DOUBLE")
        return ShownDouble(std::stod(*Text));
    if (Type == "BYTE" || Type == "INT" || Type == "LONG" || Type == "BOOLEAN")
        return *Text;
    return Type == "BINARY" ? "x'" + *Text + "'" : "'" + *Text + "'";
}

fs::path ListOf(const std::string& Name, const std::string& Table)
{
    return fs::path(ORVANE_JET) / Name / (Table + ".tsv");
}

// Every line but the first, in cells.
std::vector<std::vector<std::string>> Lines(const fs::path& File)
{
    std::vector<std::vector<std::string>> Result;
    std::ifstream Stream(File);
    for (std::string Line; std::getline(Stream, Line);) {
        auto& Cells = Result.emplace_back(1);
        for (const char Sign : Line)
            if (Sign == '\t')
                Cells.emplace_back();
            else
                Cells.back() += Sign;
    }
    if (!Result.empty())
        Result.erase(Result.begin());
    return Result;
}

std::string Shown(const SQLite::Column& Cell)
{
    if (Cell.isNull())
        return "-";
    if (Cell.isInteger())
        return std::to_string(Cell.getInt64());
    if (Cell.isFloat())
        return ShownDouble(Cell.getDouble());
    return Cell.isBlob() ? "x'" + Value(Blob{Cell.getString()}).ToText() + "'"
                         : "'" + Cell.getString() + "'";
}

} // namespace

fs::path JetFile(const std::string& Name)
{
    return fs::path(ORVANE_JET) / (Name + ".mdb");
}

std::vector<std::string> JetTypesToldOf(const std::string& Name, const std::string& Table)
{
    std::vector<std::string> Result;
    for (const auto& Line : Lines(ListOf(Name, "schema")))
        if (Plain(Line[0]) == Table)
            Result.push_back(Line[2]);
    return Result;
}

ListedTables TablesToldOf(const std::string& Name)
{
    ListedTables Result;
    for (const auto& Line : Lines(ListOf(Name, "schema")))
        Result[*Plain(Line[0])].Columns.push_back(*Plain(Line[1]));
    for (auto& [Table, Content] : Result) {
        const auto Types = JetTypesToldOf(Name, Table);
        for (const auto& Line : Lines(ListOf(Name, Table))) {
            auto& Row = Content.Rows.emplace_back();
            for (std::size_t i = 0; i < Line.size(); ++i)
                Row.push_back(Told(Line[i], Types.at(i)));
        }
    }
    return Result;
}

std::vector<ListedLink> LinksToldOf(const std::string& Name)
{
    std::vector<ListedLink> Result;
    for (const auto& Line : Lines(ListOf(Name, "liens")))
        Result.push_back({Line[0], Line[1].substr(Line[1].rfind('\\') + 1), Line[2]});
    return Result;
}

ListedTables TablesOf(const fs::path& File)
{
    const SQLite::Database Base(File.string());
    ListedTables Result;
    SQLite::Statement Names(Base, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name "
                                  "NOT IN ('SavedQueries', 'LinkedTables', 'sqlite_sequence')");
    while (Names.executeStep()) {
        const std::string Name = Names.getColumn(0).getString();
        Listed& Table = Result[Name];
        SQLite::Statement Rows(Base, "SELECT * FROM " + QuotedName(Name) + " ORDER BY rowid");
        for (int i = 0; i < Rows.getColumnCount(); ++i)
            Table.Columns.emplace_back(Rows.getColumnName(i));
        while (Rows.executeStep()) {
            auto& Row = Table.Rows.emplace_back();
            for (int i = 0; i < Rows.getColumnCount(); ++i)
                Row.push_back(Shown(Rows.getColumn(i)));
        }
    }
    return Result;
}

std::vector<ListedLink> LinksOf(const fs::path& File)
{
    const SQLite::Database Base(File.string());
    std::vector<ListedLink> Result;
    if (!Base.tableExists("LinkedTables"))
        return Result;
    SQLite::Statement Rows(Base, "SELECT Nom, Connect, Source FROM LinkedTables");
    const std::string Here = ";DATABASE=" + File.parent_path().string() + "/";
    while (Rows.executeStep()) {
        const std::string Connect = Rows.getColumn(1).getString();
        const bool IsHere = Connect.starts_with(Here);
        Result.push_back({Rows.getColumn(0).getString(),
                          IsHere ? Connect.substr(Here.size()) : Connect,
                          Rows.getColumn(2).getString()});
    }
    return Result;
}

std::string ContentOf(const fs::path& File)
{
    std::ifstream Stream(File, std::ios::binary);
    return {std::istreambuf_iterator<char>(Stream), {}};
}

std::map<std::string, std::string> Everything(const fs::path& Folder)
{
    std::map<std::string, std::string> Result;
    for (const auto& Entry : fs::recursive_directory_iterator(Folder))
        Result[Entry.path().lexically_relative(Folder).string()] =
            Entry.is_directory() ? "" : ContentOf(Entry.path());
    return Result;
}

} // namespace orvane
