#pragma once

#include "toolkit/side_menu.h"
#include "view/control_view.h"

#include <QScrollArea>

#include <vector>

namespace orvane {

class MenuBarView;
class MenuEntryView;
class User;

// Tab stops once in the menu, at the entry that had the focus last; the arrow keys go through it.
class SideMenuView : public QScrollArea, public ControlView
{
  public:
    SideMenuView(SideMenu& Model, User& TheUser, QWidget* Parent);

    QWidget& Widget() override { return *this; }
    void Follow(PropertyId What) override;
    void FollowAll() override;
    std::vector<QWidget*> TabStops() override;

  protected:
    void resizeEvent(QResizeEvent* Event) override;
    void wheelEvent(QWheelEvent* Event) override;

  private:
    void Build();
    void Add(MenuEntryView& Entry);
    void LayOut();
    void ShowInHand();
    void Move(const MenuEntryView& From, int Rows);
    void StopAt(MenuEntryView& Entry);

    SideMenu& Menu;
    User& TheUser;
    std::vector<MenuBarView*> Bars;
    std::vector<MenuEntryView*> Entries;
};

} // namespace orvane
