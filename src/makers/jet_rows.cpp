#include "makers/jet_rows.h"

#include "makers/damage.h"
#include "makers/jet_file.h"
#include "makers/jet_long.h"
#include "makers/jet_text.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr int MostMoves = 16; // of one row

struct Closer
{
    void operator()(MdbTableDef* Table) const { mdb_free_tabledef(Table); }
};
using Definition = std::unique_ptr<MdbTableDef, Closer>;

Definition DefinitionAt(JetFile& File, std::uint32_t Page, MdbCatalogEntry& Entry)
{
    Entry.mdb = &File.Library();
    Entry.object_type = MDB_TABLE;
    Entry.table_pg = Page;
    Definition Table(mdb_read_table(&Entry));
    if (!Table || mdb_read_columns(Table.get()) == nullptr)
        ThrowDamaged("no definition of a table on page " + std::to_string(Page));
    return Table;
}

const MdbColumn& ColumnAt(const MdbTableDef& Table, std::size_t i)
{
    return *static_cast<const MdbColumn*>(Table.columns->pdata[i]);
}

bool IsKnown(int Type)
{
    return (Type >= MDB_BOOL && Type <= MDB_MEMO) || Type == MDB_REPID || Type == MDB_NUMERIC;
}

std::vector<JetColumn> ColumnsOf(const MdbTableDef& Table)
{
    if (Table.num_cols == 0)
        ThrowDamaged("a table without columns");
    std::vector<JetColumn> Columns;
    for (std::size_t i = 0; i < Table.num_cols; ++i) {
        const MdbColumn& Each = ColumnAt(Table, i);
        if (!IsKnown(Each.col_type) || Each.name[0] == '\0')
            ThrowDamaged("a column of type " + std::to_string(Each.col_type));
        // The library takes precision and scale for one another; the scale is never the greater.
        const int Scale = std::min(Each.col_prec, Each.col_scale);
        Columns.push_back({Each.name, static_cast<JetType>(Each.col_type), Scale,
                           Each.is_long_auto != 0 || Each.is_uuid_auto != 0});
    }
    return Columns;
}

// A row of the page at hand, its long values as they stand in it.
std::vector<JetCell> CellsOf(const JetFile& File, MdbTableDef& Table, const JetFile::Row& Row)
{
    std::vector<MdbField> Fields(Table.num_cols);
    if (mdb_crack_row(&Table, Row.Start, Row.Bytes.size(), Fields.data()) < 0)
        ThrowDamaged("a row that can't be taken apart");
    // A row that is older than a column tells nothing of it.
    const int Known = File.IsVersion3() ? static_cast<unsigned char>(Row.Bytes[0])
                                        : mdb_get_int16(File.Library().pg_buf, Row.Start);
    std::vector<JetCell> Result(Fields.size());
    for (std::size_t i = 0; i < Fields.size(); ++i) {
        const MdbField& Field = Fields[i];
        if (Field.is_null || ColumnAt(Table, i).col_num >= Known)
            continue;
        const int End = static_cast<int>(File.Page().size());
        if (Field.siz < 0 || Field.start < 0 || Field.siz > End || Field.start > End - Field.siz)
            ThrowDamaged("a cell out of its row");
        Result[i] = std::string(File.Page().substr(static_cast<std::size_t>(Field.start),
                                                   static_cast<std::size_t>(Field.siz)));
    }
    return Result;
}

// The row at a place of the page at hand, wherever it has moved to.
std::vector<JetCell> CellsAt(JetFile& File, MdbTableDef& Table, int Place)
{
    const JetFile::Row Here = File.RowAt(Place);
    if (!Here.IsMoved)
        return CellsOf(File, Table, Here);
    const std::string Owner(File.Owner());
    std::string Pointer(Here.Bytes);
    for (int i = 0; i < MostMoves; ++i) {
        std::optional<std::vector<JetCell>> Cells;
        File.Follow(Pointer, Owner, [&](const JetFile::Row& There) {
            if (There.IsMoved)
                Pointer = There.Bytes;
            else
                Cells = CellsOf(File, Table, There);
        });
        if (Cells)
            return *Cells;
    }
    ThrowDamaged("a row that moves in a circle");
}

std::string TextOf(const JetFile& File, std::string_view Bytes)
{
    if (!File.IsVersion3())
        return TextOfJet4(Bytes);
    std::string Result(Bytes.size() * 3 + 1, '\0'); // no sign of a code page takes more
    const int Length = mdb_unicode2ascii(&File.Library(), Bytes.data(), Bytes.size(), Result.data(),
                                         Result.size());
    Result.resize(static_cast<std::size_t>(std::max(Length, 0)));
    return Result;
}

void Complete(const JetFile& File, LongValues& Values, JetType Type, std::string& Cell)
{
    if (Type == JetType::Memo || Type == JetType::Ole)
        Cell = Values.Read(Cell);
    if (Type == JetType::Memo || Type == JetType::Text)
        Cell = TextOf(File, Cell);
}

} // namespace

JetRows ReadRows(JetFile& File, std::uint32_t Page)
{
    MdbCatalogEntry Entry{};
    const Definition Table = DefinitionAt(File, Page, Entry);
    JetRows Result{ColumnsOf(*Table), {}};
    LongValues Values(File);
    mdb_rewind_table(Table.get());
    while (mdb_read_next_dpg(Table.get()) != 0)
        for (int Place = 0; Place < File.PlaceCount(); ++Place) {
            if (File.IsEmpty(Place))
                continue;
            auto& Cells = Result.Rows.emplace_back(CellsAt(File, *Table, Place));
            for (std::size_t i = 0; i < Cells.size(); ++i)
                if (Cells[i])
                    Complete(File, Values, Result.Columns[i].Type, *Cells[i]);
        }
    if (Result.Rows.size() != Table->num_rows)
        ThrowDamaged(std::to_string(Result.Rows.size()) + " rows of " +
                     std::to_string(Table->num_rows));
    return Result;
}

} // namespace orvane
