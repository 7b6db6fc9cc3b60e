#include "view/order_panel.h"

#include "base/typography.h"
#include "view/qt_text.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int Columns = 3;
constexpr int Count = 1; // the column of the counts

} // namespace

OrderPanel::OrderPanel(OrderSource Source, QWidget* Parent)
    : QWidget(Parent),
      Source(std::move(Source)),
      Title(new QLabel),
      Lines(new QTableWidget(0, Columns)),
      Total(new QLabel)
{
    QFont Bold = font();
    Bold.setBold(true);
    for (QLabel* Each : {Title, Total}) {
        Each->setTextFormat(Qt::PlainText);
        Each->setFont(Bold);
    }
    Title->setWordWrap(true);
    Total->setAlignment(Qt::AlignRight);
    Lines->setAccessibleName(QStringLiteral("Commande en main"));
    Lines->setHorizontalHeaderLabels(
        {QStringLiteral("Objet"), QStringLiteral("Nb"), QStringLiteral("Px vente")});
    Lines->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    Lines->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    Lines->horizontalHeader()->setHighlightSections(false);
    Lines->verticalHeader()->hide();
    Lines->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Lines->setSelectionMode(QAbstractItemView::NoSelection);
    Lines->setFocusPolicy(Qt::NoFocus);
    Lines->setShowGrid(false);
    auto* Column = new QVBoxLayout(this);
    for (QWidget* Each : std::initializer_list<QWidget*>{Title, Lines, Total})
        Column->addWidget(Each);
}

void OrderPanel::Refresh()
{
    const OrderShown Shown = Source();
    Title->setText(Shown.Title);
    Total->setText(ToQt(Typeset("Total : ")) + Shown.Total);
    Lines->setRowCount(static_cast<int>(Shown.Lines.size()));
    int Row = 0;
    for (const auto& Line : Shown.Lines) {
        for (int Column = 0; Column < Columns; ++Column) {
            auto* Cell = new QTableWidgetItem(Line[static_cast<std::size_t>(Column)]);
            Cell->setFlags(Qt::ItemIsEnabled);
            Cell->setToolTip(Cell->text());
            if (Column >= Count)
                Cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            Lines->setItem(Row, Column, Cell);
        }
        ++Row;
    }
}

} // namespace orvane
