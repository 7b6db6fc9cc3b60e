#include "makers/jet_content.h"

#include "base/text.h"
#include "makers/damage.h"
#include "makers/jet_file.h"
#include "makers/jet_rows.h"
#include "makers/jet_values.h"

#include <algorithm>
#include <set>

namespace orvane {

namespace {

constexpr std::uint32_t CatalogPage = 2;
constexpr std::int64_t PageOfId = 0x00FF'FFFF;
constexpr std::int64_t LocalTable = 1;
constexpr std::int64_t TableOfAnotherFile = 6;
constexpr std::int64_t IsSystem = 0x8000'0002;

// A page that has taken another's place shows in numbers that were given twice.
void CheckCounts(const JetTable& Table)
{
    for (std::size_t i = 0; i < Table.Columns.size(); ++i) {
        if (!Table.Columns[i].IsCounted)
            continue;
        std::set<std::string> Given;
        for (const std::vector<Value>& Row : Table.Rows)
            if (!Row[i].IsNull() && !Given.insert(Row[i].ToText()).second)
                ThrowDamaged(Table.Name + " has two rows " + Row[i].ToText());
    }
}

JetTable ReadTable(JetFile& File, const std::string& Name, std::uint32_t Page)
{
    JetRows Found = ReadRows(File, Page);
    JetTable Result{Name, std::move(Found.Columns), {}};
    for (const std::vector<JetCell>& Cells : Found.Rows) {
        std::vector<Value>& Row = Result.Rows.emplace_back();
        for (std::size_t i = 0; i < Cells.size(); ++i)
            Row.push_back(ValueOf(Result.Columns[i], Cells[i]));
    }
    CheckCounts(Result);
    return Result;
}

// The table in which a Jet file tells what it holds.
class Catalog
{
  public:
    explicit Catalog(JetFile& File) : Objects(ReadTable(File, {}, CatalogPage)) {}

    const std::vector<std::vector<Value>>& Rows() const { return Objects.Rows; }

    std::int64_t Whole(const std::vector<Value>& Row, std::string_view Column) const
    {
        const auto* Found = std::get_if<std::int64_t>(&Cell(Row, Column).Raw());
        if (Found == nullptr)
            ThrowDamaged("an object without its " + std::string(Column));
        return *Found;
    }

    std::string Text(const std::vector<Value>& Row, std::string_view Column) const
    {
        return Cell(Row, Column).ToText();
    }

  private:
    const Value& Cell(const std::vector<Value>& Row, std::string_view Column) const
    {
        const auto Found = std::ranges::find(Objects.Columns, Column, &JetColumn::Name);
        if (Found == Objects.Columns.end())
            ThrowDamaged("a catalogue without " + std::string(Column));
        return Row[static_cast<std::size_t>(Found - Objects.Columns.begin())];
    }

    JetTable Objects;
};

// Tables that people made and still have.
bool IsTheirs(const std::string& Name, std::int64_t Flags)
{
    const std::string Folded = FoldedCase(Name);
    return (Flags & IsSystem) == 0 && !Folded.starts_with("msys") &&
           !Folded.starts_with("~tmpclp"); // deleted, as long as the file isn't compacted
}

} // namespace

bool BeginsAsJet(std::string_view Content)
{
    return Content.starts_with(std::string_view("\0\1\0\0Standard Jet DB", JetBeginning));
}

JetContent ReadJet(std::string Content)
{
    JetFile File(std::move(Content));
    const Catalog Objects(File);
    JetContent Result;
    std::set<std::int64_t> Known;
    for (const std::vector<Value>& Row : Objects.Rows()) {
        const std::string Name = Objects.Text(Row, "Name");
        const std::int64_t Type = Objects.Whole(Row, "Type");
        if ((Type != LocalTable && Type != TableOfAnotherFile) ||
            !IsTheirs(Name, Objects.Whole(Row, "Flags")))
            continue;
        if (Type == TableOfAnotherFile) {
            Result.Links.push_back(
                {Name, Objects.Text(Row, "Database"), Objects.Text(Row, "ForeignName")});
            continue;
        }
        const std::int64_t Page = Objects.Whole(Row, "Id") & PageOfId;
        if (Name.empty() || !Known.insert(Page).second)
            ThrowDamaged("two tables in one place");
        Result.Tables.push_back(ReadTable(File, Name, static_cast<std::uint32_t>(Page)));
    }
    return Result;
}

} // namespace orvane
