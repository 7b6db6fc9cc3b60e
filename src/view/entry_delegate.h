#pragma once

#include <QStyledItemDelegate>

namespace orvane {

// Draws entries of lists, and tells those that are too long in a tip.
class EntryDelegate : public QStyledItemDelegate
{
  public:
    enum class Keyboard { InList, Elsewhere };

    // A list whose keyboard is elsewhere shows its choice as if it had the focus.
    EntryDelegate(Keyboard Where, QObject* Parent) : QStyledItemDelegate(Parent), Where(Where) {}

    void paint(QPainter* Painter, const QStyleOptionViewItem& Option,
               const QModelIndex& Index) const override;
    QSize sizeHint(const QStyleOptionViewItem& Option, const QModelIndex& Index) const override;
    bool helpEvent(QHelpEvent* Event, QAbstractItemView* View, const QStyleOptionViewItem& Option,
                   const QModelIndex& Index) override;

  private:
    Keyboard Where;
};

} // namespace orvane
