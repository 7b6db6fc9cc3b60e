#include "tour/eyes.h"
#include "tour/hands.h"
#include "tour/names.h"
#include "view/combo_box_view.h"
#include "view/entry_popup.h"
#include "view/list_box_view.h"

namespace orvane::tour {

namespace {

constexpr int FromRightEdge = 8; // into a combo box's arrow

// The open list of a combo box, nothing when it is closed.
EntryPopup* ListOf(const ComboBoxView& Box)
{
    for (auto* Each : Box.window()->findChildren<QListView*>())
        if (Each == Box.Popup() && Each->isVisible())
            return static_cast<EntryPopup*>(Each);
    return nullptr;
}

} // namespace

QAbstractItemView& Hands::Opened(const QString& List) const
{
    QWidget& Target = TheEyes.The(List);
    if (auto* Lying = dynamic_cast<ListBoxView*>(&Target))
        return *Lying;
    const auto* Box = dynamic_cast<ComboBoxView*>(&Target);
    if (Box == nullptr)
        throw Because(QStringLiteral("%1 is no list").arg(List));
    if (ListOf(*Box) == nullptr)
        Click(Target, {Target.width() - FromRightEdge, Target.height() / 2});
    EntryPopup* Popup = ListOf(*Box);
    if (Popup == nullptr)
        throw Because(QStringLiteral("the list of %1 doesn't open: it is empty").arg(List));
    return *Popup;
}

void Hands::Open(const QString& Combo) const
{
    Opened(Combo);
}

QStringList Hands::Entries(const QString& List) const
{
    QStringList Result;
    const QAbstractItemModel& Rows = *Opened(List).model();
    for (int Row = 0; Row < Rows.rowCount(); ++Row)
        Result << Rows.index(Row, 0).data().toString();
    if (auto* Combo = qobject_cast<QComboBox*>(&TheEyes.The(List))) // may lie on what comes next
        Combo->hidePopup();
    return Result;
}

void Hands::Pick(const QString& List, int Row) const
{
    QAbstractItemView& Rows = Opened(List);
    const QModelIndex Entry = Rows.model()->index(Row, 0);
    Rows.scrollTo(Entry);
    Click(*Rows.viewport(), Rows.visualRect(Entry).center());
}

} // namespace orvane::tour
