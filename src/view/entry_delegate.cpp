#include "view/entry_delegate.h"

#include "view/entry_model.h"
#include "view/look.h"
#include "view/tip.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace orvane {

void EntryDelegate::paint(QPainter* Painter, const QStyleOptionViewItem& Option,
                          const QModelIndex& Index) const
{
    const bool Chosen = Option.state.testFlag(QStyle::State_Selected);
    const bool Active = Where == Keyboard::Elsewhere || Option.state.testFlag(QStyle::State_Active);
    QColor Words = Option.palette.color(QPalette::Text);
    if (Chosen) {
        Painter->fillRect(Option.rect, Active ? look::Now().Choice : look::Now().QuietChoice);
        Words = Active ? look::Now().ChoiceInk : look::Now().Ink;
    } else if (Option.state.testFlag(QStyle::State_MouseOver)) {
        Painter->fillRect(Option.rect, look::Now().Hover);
        Words = look::Now().Ink;
    }
    QRect Box = Option.rect.adjusted(look::RowPadding, 0, -look::RowPadding, 0);
    const QString Text = Index.data(Qt::DisplayRole).toString();
    const QString Widest = Index.data(EntryModel::WidestFigure).toString();
    const QFont Font =
        look::FittingFont(Option.font.pointSizeF(), Widest.isEmpty() ? Text : Widest, Box.width());
    Painter->setFont(Font);
    Painter->setPen(Words);
    auto Side = Index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    if (!Widest.isEmpty()) { // commas stand below each other, the widest figure in the middle
        const QFontMetrics Wide(Font);
        Box.setLeft(Box.left() + (Box.width() - Wide.horizontalAdvance(Widest)) / 2 +
                    Wide.horizontalAdvance(Widest.section(u',', 0, 0)) -
                    Wide.horizontalAdvance(Text.section(u',', 0, 0)));
        Side = Qt::AlignLeft;
    }
    Painter->drawText(Box, static_cast<int>(Side) | Qt::AlignVCenter | Qt::TextSingleLine,
                      QFontMetrics(Font).elidedText(Text, Qt::ElideRight, Box.width()));
}

// An entry is as wide as its list, however long its text.
QSize EntryDelegate::sizeHint(const QStyleOptionViewItem& Option, const QModelIndex&) const
{
    return {1, Option.fontMetrics.height() + look::RowPadding + 1};
}

bool EntryDelegate::helpEvent(QHelpEvent* Event, QAbstractItemView* View,
                              const QStyleOptionViewItem& Option, const QModelIndex& Index)
{
    const QString Text = Index.data(Qt::DisplayRole).toString();
    if (Event->type() == QEvent::ToolTip &&
        Option.fontMetrics.horizontalAdvance(Text) + 2 * look::RowPadding > Option.rect.width()) {
        QToolTip::showText(Event->globalPos(), AsTip(Text), View);
        return true;
    }
    return QStyledItemDelegate::helpEvent(Event, View, Option, Index);
}

} // namespace orvane
