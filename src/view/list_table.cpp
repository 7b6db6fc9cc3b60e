#include "view/list_table.h"

#include "view/control_interface.h"
#include "view/list_box_view.h"
#include "view/qt_text.h"

namespace orvane {

namespace {

// A cell says what its list shows at that moment.
class ListCell : public QAccessibleInterface, public QAccessibleTableCellInterface
{
  public:
    ListCell(ListTable& Table, int Row, int Column) : Table(Table), Row(Row), Column(Column) {}

    bool isValid() const override
    {
        return Table.isValid() && Row < Table.rowCount() && Column < Table.columnCount();
    }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return Table.window(); }
    QAccessibleInterface* parent() const override { return &Table; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text What) const override
    {
        if (What == QAccessible::Name)
            return Table.Text(Row, Column);
        return What == QAccessible::Description && IsOfChoice() ? Table.RestOfRow(Row) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return Table.Box(Row, Column); }
    QAccessible::Role role() const override
    {
        return Row == ListTable::Header ? QAccessible::ColumnHeader : QAccessible::Cell;
    }
    QAccessible::State state() const override
    {
        QAccessible::State Result;
        Result.readOnly = true;
        if (Row == ListTable::Header)
            return Result;
        Result.selectable = Result.focusable = true;
        Result.selected = isSelected();
        Result.focused = IsOfChoice() && isSelected() && Table.HasKeyboard();
        Result.offscreen = !rect().intersects(Table.rect());
        return Result;
    }

    void* interface_cast(QAccessible::InterfaceType Type) override
    {
        return Type == QAccessible::TableCellInterface
                   ? static_cast<QAccessibleTableCellInterface*>(this)
                   : nullptr;
    }
    bool isSelected() const override { return Table.isRowSelected(Row); }
    QList<QAccessibleInterface*> columnHeaderCells() const override
    {
        return {Table.cellAt(ListTable::Header, Column)};
    }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return Column; }
    int rowIndex() const override { return Row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return &Table; }

  private:
    // The cell that is told for its whole row.
    bool IsOfChoice() const { return Row != ListTable::Header && Column == 0; }

    ListTable& Table;
    int Row;
    int Column;
};

} // namespace

ListTable::ListTable(ListBoxView& List) : QAccessibleWidget(&List, QAccessible::Table), List(List)
{
}

ListTable::~ListTable()
{
    ForgetCells();
}

void ListTable::ForgetCells()
{
    for (const auto& [Where, Id] : Cells)
        QAccessible::deleteAccessibleInterface(Id);
    Cells.clear();
}

int ListTable::Choice() const
{
    return List.Box().ListIndex;
}

bool ListTable::HasKeyboard() const
{
    return List.hasFocus();
}

QString ListTable::Text(int Row, int Column) const
{
    const ListColumns All = Columns();
    if (Row >= rowCount() || Column < 0 || Column >= columnCount())
        return {};
    const ListBoxView& Which = *All[static_cast<std::size_t>(Column)];
    return Row == Header ? Which.accessibleName()
                         : ToQt(Which.Box().Items()[static_cast<std::size_t>(Row)]);
}

QRect ListTable::Box(int Row, int Column) const
{
    const ListBoxView& Which = *Columns().at(static_cast<std::size_t>(Column));
    const QRect Within =
        Row == Header ? Which.viewport()->rect() : Which.visualRect(Which.model()->index(Row, 0));
    return {Which.viewport()->mapToGlobal(Within.topLeft()), Within.size()};
}

QAccessibleInterface* ListTable::parent() const
{
    return GroupOf(List);
}

void* ListTable::interface_cast(QAccessible::InterfaceType Type)
{
    return Type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(Type);
}

int ListTable::childCount() const
{
    return (rowCount() + 1) * columnCount();
}

QAccessibleInterface* ListTable::child(int Index) const
{
    return Index < 0 ? nullptr : cellAt(Index / columnCount() - 1, Index % columnCount());
}

QAccessibleInterface* ListTable::childAt(int X, int Y) const
{
    const ListColumns All = Columns();
    for (std::size_t Column = 0; Column < All.size(); ++Column) {
        const QPoint At = All[Column]->viewport()->mapFromGlobal(QPoint(X, Y));
        if (All[Column]->viewport()->rect().contains(At))
            return cellAt(All[Column]->indexAt(At).row(), static_cast<int>(Column));
    }
    return nullptr;
}

int ListTable::indexOfChild(const QAccessibleInterface* Child) const
{
    const auto* Cell = dynamic_cast<const ListCell*>(Child);
    return Cell == nullptr ? -1 : (Cell->rowIndex() + 1) * columnCount() + Cell->columnIndex();
}

QAccessibleInterface* ListTable::focusChild() const
{
    return HasKeyboard() && Choice() >= 0 ? cellAt(Choice(), 0) : QAccessibleWidget::focusChild();
}

QRect ListTable::rect() const
{
    QRect Result;
    for (const ListBoxView* Each : Columns())
        Result |= QRect(Each->mapToGlobal(QPoint(0, 0)), Each->size());
    return Result;
}

QAccessibleInterface* ListTable::cellAt(int Row, int Column) const
{
    if (Row < Header || Row >= rowCount() || Column < 0 || Column >= columnCount())
        return nullptr;
    const auto [Known, IsNew] = Cells.try_emplace({Row, Column});
    if (IsNew)
        Known->second = QAccessible::registerAccessibleInterface(
            new ListCell(const_cast<ListTable&>(*this), Row, Column));
    return QAccessible::accessibleInterface(Known->second);
}

int ListTable::rowCount() const
{
    return List.Box().ListCount();
}

QString ListTable::rowDescription(int Row) const
{
    const QString Rest = RestOfRow(Row);
    return Rest.isEmpty() ? Text(Row, 0) : Text(Row, 0) + QStringLiteral(", ") + Rest;
}

QString ListTable::RestOfRow(int Row) const
{
    QStringList Told;
    for (int Column = 1; Column < columnCount(); ++Column)
        Told << Text(Header, Column) + u' ' + Text(Row, Column);
    return Told.join(QStringLiteral(", "));
}

int ListTable::selectedCellCount() const
{
    return selectedRowCount() * columnCount();
}

QList<QAccessibleInterface*> ListTable::selectedCells() const
{
    QList<QAccessibleInterface*> Result;
    for (int Column = 0; Column < selectedCellCount(); ++Column)
        Result << cellAt(Choice(), Column);
    return Result;
}

QList<int> ListTable::selectedRows() const
{
    return selectedRowCount() == 0 ? QList<int>() : QList<int>{Choice()};
}

bool ListTable::selectRow(int Row)
{
    List.Pick(Row);
    return Choice() == Row;
}

} // namespace orvane
