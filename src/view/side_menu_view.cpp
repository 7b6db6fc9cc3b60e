#include "view/side_menu_view.h"

#include "toolkit/user.h"
#include "view/act.h"
#include "view/look.h"
#include "view/menu_bar_view.h"

#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace orvane {

SideMenuView::SideMenuView(SideMenu& Model, User& TheUser, QWidget* Parent)
    : QScrollArea(Parent),
      ControlView(Model),
      Menu(Model),
      TheUser(TheUser)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
}

void SideMenuView::Follow(PropertyId What)
{
    ControlView::Follow(What);
    if (What == PropertyId::Items)
        Build();
    else if (What == PropertyId::FontSize)
        LayOut();
    else if (What == PropertyId::ListIndex)
        ShowInHand();
}

void SideMenuView::ShowInHand()
{
    for (MenuEntryView* Each : Entries)
        Each->SetInHand(Each->Key() == std::string(Menu.InHand));
}

void SideMenuView::FollowAll()
{
    ControlView::FollowAll();
    Build();
}

void SideMenuView::Build()
{
    if (QWidget* Old = takeWidget()) { // perhaps in the middle of a click on one of its entries
        Old->hide();
        Old->deleteLater();
    }
    Bars.clear();
    Entries.clear();
    auto* Body = new QWidget;
    for (const SideMenu::Bar& Each : Menu.Bars()) {
        Bars.push_back(new MenuBarView(Each, Menu.SmallIcons(), Body));
        for (MenuEntryView* Entry : Bars.back()->Entries())
            Add(*Entry);
    }
    if (!Entries.empty())
        Entries.front()->setFocusPolicy(Qt::StrongFocus);
    setWidget(Body);
    Body->setAutoFillBackground(false);
    LayOut();
    ShowInHand();
    Body->show();
}

void SideMenuView::Add(MenuEntryView& Entry)
{
    Entries.push_back(&Entry);
    connect(&Entry, &QAbstractButton::clicked, this,
            [this, &Entry] { Act([&] { TheUser.ClickItem(Menu, std::string(Entry.Key())); }); });
    Entry.OnMove = [this, &Entry](int Rows) { Move(Entry, Rows); };
    Entry.OnFocus = [this, &Entry] { StopAt(Entry); };
}

void SideMenuView::LayOut()
{
    constexpr int BarGap = 8;
    if (widget() == nullptr)
        return;
    int Total = 0;
    const auto Place = [&](int Width) {
        Total = 0;
        for (MenuBarView* Each : Bars) {
            const int Height = Each->HeightFor(Width);
            Each->setGeometry(0, Total, Width, Height);
            Total += Height + BarGap;
        }
        Total = std::max(0, Total - BarGap);
    };
    Place(width());
    if (Total > height())
        Place(width() - verticalScrollBar()->sizeHint().width() - 2);
    widget()->resize(Total > height() ? viewport()->width() : width(), Total);
}

void SideMenuView::Move(const MenuEntryView& From, int Rows)
{
    const auto At = std::ranges::find(Entries, &From) - Entries.begin() + Rows;
    if (At >= 0 && At < std::ssize(Entries))
        Entries[static_cast<std::size_t>(At)]->setFocus(Qt::TabFocusReason);
}

void SideMenuView::StopAt(MenuEntryView& Entry)
{
    for (MenuEntryView* Each : Entries)
        Each->setFocusPolicy(Each == &Entry ? Qt::StrongFocus : Qt::ClickFocus);
    ensureWidgetVisible(&Entry, 0, 0);
}

std::vector<QWidget*> SideMenuView::TabStops()
{
    return {Entries.begin(), Entries.end()};
}

void SideMenuView::resizeEvent(QResizeEvent* Event)
{
    QScrollArea::resizeEvent(Event);
    LayOut();
}

void SideMenuView::wheelEvent(QWheelEvent* Event)
{
    if (verticalScrollBar()->isVisible())
        QScrollArea::wheelEvent(Event);
    else
        Event->ignore();
}

} // namespace orvane
