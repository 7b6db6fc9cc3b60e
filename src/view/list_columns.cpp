#include "view/list_columns.h"

#include "view/list_box_view.h"

#include <QScrollBar>

#include <algorithm>
#include <vector>

namespace orvane {

namespace {

bool AreColumns(const ListBox& One, const ListBox& Other)
{
    return One.Top() == Other.Top() && One.Height() == Other.Height() &&
           One.ListCount() == Other.ListCount();
}

std::vector<ListBoxView*> ListsOf(const QWidget& Window)
{
    std::vector<ListBoxView*> Result;
    for (QListView* Each : Window.findChildren<QListView*>(Qt::FindDirectChildrenOnly))
        if (auto* List = dynamic_cast<ListBoxView*>(Each))
            Result.push_back(List);
    return Result;
}

bool HasColumnAtRight(const ListBoxView& One, const std::vector<ListBoxView*>& Lists)
{
    return std::ranges::any_of(Lists, [&](const ListBoxView* Other) {
        return Other->Box().Visible && Other->Box().Left() > One.Box().Left() &&
               AreColumns(One.Box(), Other->Box());
    });
}

} // namespace

void ScrollColumns(ListBoxView& From, int Row)
{
    for (ListBoxView* Each : ListsOf(*From.parentWidget()))
        if (Each != &From && AreColumns(From.Box(), Each->Box()))
            Each->verticalScrollBar()->setValue(Row);
}

// The lists that have just stopped being columns of the changed one need their bars again.
void ArrangeColumns(ListBoxView& Changed)
{
    const std::vector<ListBoxView*> Lists = ListsOf(*Changed.parentWidget());
    for (ListBoxView* Each : Lists)
        Each->setVerticalScrollBarPolicy(HasColumnAtRight(*Each, Lists) ? Qt::ScrollBarAlwaysOff
                                                                        : Qt::ScrollBarAsNeeded);
}

} // namespace orvane
