#pragma once

#include <QStyledItemDelegate>

namespace orvane {

// Draws entries of lists, and tells those that are too long in a tip.
class EntryDelegate : public QStyledItemDelegate
{
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* Painter, const QStyleOptionViewItem& Option,
               const QModelIndex& Index) const override;
    QSize sizeHint(const QStyleOptionViewItem& Option, const QModelIndex& Index) const override;
    bool helpEvent(QHelpEvent* Event, QAbstractItemView* View, const QStyleOptionViewItem& Option,
                   const QModelIndex& Index) override;
};

} // namespace orvane
