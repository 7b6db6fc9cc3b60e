#include "view/list_columns.h"

#include "view/list_box_view.h"

#include <QScrollBar>

#include <algorithm>

namespace orvane {

namespace {

bool AreColumns(const ListBox& One, const ListBox& Other)
{
    return One.Visible && Other.Visible && One.Top() == Other.Top() &&
           One.Height() == Other.Height() && One.ListCount() == Other.ListCount();
}

ListColumns ListsOf(const QWidget& Window)
{
    ListColumns Result;
    for (QListView* Each : Window.findChildren<QListView*>(Qt::FindDirectChildrenOnly))
        if (auto* List = dynamic_cast<ListBoxView*>(Each))
            Result.push_back(List);
    return Result;
}

} // namespace

ListColumns ColumnsOf(ListBoxView& One)
{
    ListColumns Result = ListsOf(*One.parentWidget());
    std::erase_if(Result, [&](const ListBoxView* Each) {
        return Each != &One && !AreColumns(One.Box(), Each->Box());
    });
    std::ranges::stable_sort(Result, {}, [](const auto* Each) { return Each->Box().Left(); });
    return Result;
}

void ScrollColumns(ListBoxView& From, int Row)
{
    for (ListBoxView* Each : ColumnsOf(From))
        Each->verticalScrollBar()->setValue(Row);
}

// All lists of the window: those that have just stopped being columns of the changed one need their
// bars and the keyboard again.
void ArrangeColumns(ListBoxView& Changed)
{
    for (ListBoxView* Each : ListsOf(*Changed.parentWidget())) {
        const ListColumns Columns = ColumnsOf(*Each);
        Each->setVerticalScrollBarPolicy(Each == Columns.back() ? Qt::ScrollBarAsNeeded
                                                                : Qt::ScrollBarAlwaysOff);
        Each->LeaveKeyboardTo(*Columns.front());
    }
}

} // namespace orvane
