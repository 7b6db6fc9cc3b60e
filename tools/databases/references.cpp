#include "databases/references.h"

#include "base/number_text.h"

#include <algorithm>

namespace orvane::tools {

namespace {

constexpr std::string_view Separator = " / ";

std::vector<std::string> SplitPath(const std::string& Cell)
{
    std::vector<std::string> Path;
    std::size_t Start = 0;
    for (std::size_t At = 0; At != std::string::npos; Start = At + Separator.size()) {
        At = Cell.find(Separator, Start);
        Path.push_back(Cell.substr(Start, At == std::string::npos ? At : At - Start));
    }
    return Path;
}

bool EndsWith(const std::vector<std::string>& Path, const std::vector<std::string>& Tail)
{
    return Tail.size() <= Path.size() && std::equal(Tail.rbegin(), Tail.rend(), Path.rbegin());
}

// The row's cell in that column, or nothing.
const std::string* CellOf(const TsvTable& Rows, const TsvTable::Row& Row, std::string_view Column)
{
    const auto At = std::ranges::find(Rows.Columns, Column);
    if (At == Rows.Columns.end())
        return nullptr;
    return &Row.Cells[static_cast<std::size_t>(At - Rows.Columns.begin())];
}

} // namespace

void References::Add(const TableDefinition& Table, const TsvTable& Rows)
{
    const auto Parent =
        std::ranges::find(Table.Columns, ColumnType::Reference, &ColumnDefinition::Type);
    std::vector<Target>& Known = Targets[Table.Name];
    std::int64_t Next = 1;
    for (const TsvTable::Row& Row : Rows.Rows) {
        Target Made;
        const std::string* Num = CellOf(Rows, Row, "Num");
        Made.Num = Num == nullptr ? Next : ScaledFromText(*Num, 0).value_or(Next);
        Next = Made.Num + 1;
        const std::string* Above =
            Parent == Table.Columns.end() ? nullptr : CellOf(Rows, Row, Parent->Name);
        if (Above != nullptr && !Above->empty() && Targets.contains(Parent->Target)) {
            const std::int64_t ParentNum = Resolve(Parent->Target, *Above, Row.Place);
            const auto& Parents = Targets.at(Parent->Target);
            Made.Path = std::ranges::find(Parents, ParentNum, &Target::Num)->Path;
        }
        if (const std::string* Nom = CellOf(Rows, Row, "Nom"))
            Made.Path.push_back(*Nom);
        Known.push_back(std::move(Made));
    }
}

std::int64_t References::Resolve(const std::string& Table, const std::string& Cell,
                                 const std::string& Place) const
{
    const auto Found = Targets.find(Table);
    const std::vector<Target> None;
    const std::vector<Target>& Known = Found == Targets.end() ? None : Found->second;
    const auto Number = ScaledFromText(Cell, 0);
    const auto Path = SplitPath(Cell);
    std::vector<std::int64_t> Fitting;
    for (const Target& Each : Known)
        if (Number ? Each.Num == *Number : EndsWith(Each.Path, Path))
            Fitting.push_back(Each.Num);
    if (Fitting.size() != 1)
        throw SourceError(Place + " : « " + Cell + " » désigne " + std::to_string(Fitting.size()) +
                          " lignes de " + Table);
    return Fitting.front();
}

} // namespace orvane::tools
