#include "view/entry_model.h"

#include "base/montant.h"
#include "view/qt_text.h"

#include <algorithm>
#include <numeric>

namespace orvane {

void EntryModel::TakeAll()
{
    std::vector<int> All(static_cast<std::size_t>(List.ListCount()));
    std::iota(All.begin(), All.end(), 0);
    Take(std::move(All));
}

void EntryModel::Take(std::vector<int> NewEntries)
{
    beginResetModel();
    Entries = std::move(NewEntries);
    KnownWidest.reset();
    endResetModel();
}

int EntryModel::RowOf(int Entry) const
{
    const auto Found = std::ranges::find(Entries, Entry);
    return Found == Entries.end() ? -1 : static_cast<int>(Found - Entries.begin());
}

int EntryModel::rowCount(const QModelIndex& Parent) const
{
    return Parent.isValid() ? 0 : static_cast<int>(Entries.size());
}

QVariant EntryModel::data(const QModelIndex& Index, int Role) const
{
    if (Role == Qt::TextAlignmentRole)
        return QVariant::fromValue(ToQt(List.Align));
    if (Role == WidestFigure) {
        if (!KnownWidest)
            KnownWidest = Widest();
        return *KnownWidest;
    }
    if (Role != Qt::DisplayRole || Index.row() < 0 || Index.row() >= rowCount())
        return {};
    const int Entry = EntryAt(Index.row());
    if (Entry >= List.ListCount()) // the list has shrunk since
        return {};
    return ToQt(List.Items()[static_cast<std::size_t>(Entry)]);
}

QString EntryModel::Widest() const
{
    if (List.Align != Alignment::Centre)
        return {};
    qsizetype Before = 0;
    qsizetype Behind = 0; // the comma included
    for (const std::string& Each : List.Items()) {
        if (!Each.empty() && !Montant::FromText(Each))
            return {};
        const QString Figure = ToQt(Each);
        const qsizetype Whole = Figure.section(u',', 0, 0).size();
        Before = std::max(Before, Whole);
        Behind = std::max(Behind, Figure.size() - Whole);
    }
    return QString(Before, u'0') + (Behind == 0 ? QString() : u',' + QString(Behind - 1, u'0'));
}

} // namespace orvane
