#pragma once

#include "view/list_columns.h"

#include <QAccessibleWidget>

#include <map>

namespace orvane {

// What a screen reader meets in the place of lists side by side: one table of cells below the names
// of the columns. The first list tells it; the others stand in no tree.
class ListTable : public QAccessibleWidget, public QAccessibleTableInterface
{
  public:
    static constexpr int Header = -1; // its row

    explicit ListTable(ListBoxView& List);

    ListColumns Columns() const { return ColumnsOf(List); } // at this moment
    int Choice() const;                                     // a row, -1 for none
    bool HasKeyboard() const;
    QString Text(int Row, int Column) const;
    QRect Box(int Row, int Column) const; // on the desktop

    QAccessibleInterface* parent() const override;
    void* interface_cast(QAccessible::InterfaceType Type) override;
    int childCount() const override; // the header's cells, then row by row
    QAccessibleInterface* child(int Index) const override;
    QAccessibleInterface* childAt(int X, int Y) const override;
    int indexOfChild(const QAccessibleInterface* Child) const override;
    QAccessibleInterface* focusChild() const override;
    QRect rect() const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int Row, int Column) const override;
    int rowCount() const override;
    int columnCount() const override { return static_cast<int>(Columns().size()); }
    QString columnDescription(int Column) const override { return Text(Header, Column); }
    QString rowDescription(int Row) const override; // the row as a whole
    QString RestOfRow(int Row) const;               // all but its first cell

    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return Choice() < 0 ? 0 : 1; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int Row) const override { return Row >= 0 && Row == Choice(); }
    bool selectRow(int Row) override;
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { ForgetCells(); }

  protected:
    ~ListTable() override;

  private:
    void ForgetCells();

    ListBoxView& List;
    mutable std::map<std::pair<int, int>, QAccessible::Id> Cells; // those that were asked for
};

} // namespace orvane
