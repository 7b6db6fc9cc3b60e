#include "makers/jet_schema.h"

#include "base/failure.h"
#include "base/text.h"
#include "catalogue/declaration.h"
#include "store/value.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace orvane {

namespace {

constexpr int DecimalsOfDecimal = 4;

bool IsSame(const std::string& Left, const std::string& Right)
{
    return FoldedCase(Left) == FoldedCase(Right);
}

template <class T>
const T* FindNamed(const std::vector<T>& Among, const std::string& Name)
{
    const auto Found =
        std::ranges::find_if(Among, [&](const T& Each) { return IsSame(Each.Name, Name); });
    return Found == Among.end() ? nullptr : &*Found;
}

// The file of ours that has the most of these tables; nothing when none has any.
const DatabaseDefinition* KindOf(const JetContent& Content)
{
    const DatabaseDefinition* Best = nullptr;
    std::ptrdiff_t Most = 0;
    for (const DatabaseDefinition* Each :
         {&ConfigDefinition(), &PanierDefinition(), &AlchimieDefinition(), &RoyaumeDefinition(),
          &SkinDefinition()}) {
        const auto Count = std::ranges::count_if(Content.Tables, [&](const JetTable& Table) {
            return FindNamed(Each->Tables, Table.Name) != nullptr;
        });
        if (Count > Most) {
            Best = Each;
            Most = Count;
        }
    }
    return Best;
}

std::optional<TableDefinition> OursOf(const DatabaseDefinition* Kind, const std::string& Table)
{
    if (Kind == nullptr)
        return {};
    if (const TableDefinition* Found = FindNamed(Kind->Tables, Table))
        return *Found;
    if (Kind == &SkinDefinition() && Table.starts_with("frm_"))
        return LayoutTable(Table);
    return {};
}

// What a column may be in our file by its type in Jet, the narrowest first: the last holds anything
// that the type can.
std::vector<ColumnType> OwnTypes(const JetColumn& Column)
{
    switch (Column.Type) {
    case JetType::Boolean:
    case JetType::Byte:
    case JetType::Int16:
    case JetType::Int32:
        return {ColumnType::Whole};
    case JetType::Money:
        return {ColumnType::Decimal};
    case JetType::Numeric:
        if (Column.Scale <= DecimalsOfDecimal)
            return {ColumnType::Decimal, ColumnType::Numeric};
        return {ColumnType::Numeric};
    case JetType::Single:
    case JetType::Double:
        return {ColumnType::Double};
    case JetType::Binary:
    case JetType::Ole:
        return {ColumnType::Blob};
    default:
        return {ColumnType::Text};
    }
}

// A column of a table in Jet.
struct Cells
{
    const JetTable& Table;
    std::size_t Column;
};

// Whether the numbers can be the table's key without changing the order of its rows, unless the
// store goes on numbering them.
bool IsKey(Cells Of, bool OrderMatters)
{
    std::vector<std::int64_t> Numbers;
    for (const std::vector<Value>& Row : Of.Table.Rows) {
        const auto* Number = std::get_if<std::int64_t>(&Row[Of.Column].Raw());
        if (Number == nullptr)
            return false;
        Numbers.push_back(*Number);
    }
    if (!OrderMatters)
        std::ranges::sort(Numbers);
    return std::ranges::adjacent_find(Numbers, std::greater_equal()) == Numbers.end();
}

// Whether a column of that type shows each value as it is.
bool HoldsAll(ColumnType Type, Cells Of)
{
    const ColumnKind Kind(DeclaredType(Type));
    return std::ranges::all_of(Of.Table.Rows, [&](const std::vector<Value>& Row) {
        const Value& Each = Row[Of.Column];
        if (std::holds_alternative<Blob>(Each.Raw()))
            return Type == ColumnType::Blob;
        try {
            return Kind.Convert(Each).ToText() == Each.ToText();
        } catch (const Failure&) {
            return false;
        }
    });
}

ColumnDefinition ColumnOf(Cells Of, const TableDefinition* Ours, bool OrderMatters)
{
    const JetColumn& Column = Of.Table.Columns[Of.Column];
    std::vector<ColumnType> Types = OwnTypes(Column);
    const ColumnDefinition* Told =
        Ours == nullptr ? nullptr : FindNamed(Ours->Columns, Column.Name);
    if (Told != nullptr && (Told->Type == ColumnType::Key || Told->Type == ColumnType::Counter)) {
        if (IsKey(Of, OrderMatters))
            return *Told;
        Types.insert(Types.begin(), ColumnType::Reference); // looked up all the same
    } else if (Told != nullptr) {
        Types.insert(Types.begin(), Told->Type);
    }
    const auto Fitting =
        std::ranges::find_if(Types, [&](ColumnType Each) { return HoldsAll(Each, Of); });
    return {Column.Name, Fitting == Types.end() ? Types.back() : *Fitting, {}};
}

} // namespace

DatabaseDefinition DefinitionOf(const JetContent& Content, const std::filesystem::path& Folder)
{
    const DatabaseDefinition* Kind = KindOf(Content);
    DatabaseDefinition Result;
    for (const JetTable& Table : Content.Tables) {
        const auto Ours = OursOf(Kind, Table.Name);
        TableDefinition& Made = Result.Tables.emplace_back(TableDefinition{Table.Name, {}});
        for (std::size_t i = 0; i < Table.Columns.size(); ++i)
            Made.Columns.push_back(
                ColumnOf({Table, i}, Ours ? &*Ours : nullptr, Kind != &PanierDefinition()));
    }
    const auto Here = [&](const std::string& Path) {
        return (std::filesystem::absolute(Folder) / Path.substr(Path.find_last_of("\\/") + 1))
            .string();
    };
    for (const JetLink& Link : Content.Links)
        Result.Links.push_back({Link.Name, Here(Link.Path), Link.Source});
    if (Kind == nullptr)
        return Result;
    Result.Queries = Kind->Queries;
    for (const LinkDefinition& Link : Kind->Links)
        if (FindNamed(Result.Tables, Link.Name) == nullptr &&
            FindNamed(Result.Links, Link.Name) == nullptr)
            Result.Links.push_back({Link.Name, Here(Link.File), Link.Source});
    return Result;
}

} // namespace orvane
