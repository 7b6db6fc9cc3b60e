#pragma once

#include "toolkit/lists.h"

#include <QAbstractListModel>

#include <optional>
#include <vector>

namespace orvane {

// Entries of a list for a view, read where they are: all of them, or a choice in an order of its
// own.
class EntryModel : public QAbstractListModel
{
  public:
    // Of a centred list of numbers: a text as wide as any on either side of the comma. Empty for
    // other lists.
    static constexpr int WidestFigure = Qt::UserRole;

    EntryModel(const ListControl& List, QObject* Parent) : QAbstractListModel(Parent), List(List) {}

    void TakeAll();
    void Take(std::vector<int> NewEntries);

    int EntryAt(int Row) const { return Entries.at(static_cast<std::size_t>(Row)); }
    int RowOf(int Entry) const; // -1 when it isn't among them

    int rowCount(const QModelIndex& Parent = {}) const override;
    QVariant data(const QModelIndex& Index, int Role) const override;

  private:
    QString Widest() const;

    const ListControl& List;
    std::vector<int> Entries;
    mutable std::optional<QString> KnownWidest; // of these entries
};

} // namespace orvane
