#pragma once

#include "toolkit/lists.h"
#include "view/control_view.h"
#include "view/entry_model.h"

#include <QListView>

namespace orvane {

class User;

class ListBoxView : public QListView, public ControlView
{
  public:
    ListBoxView(ListBox& Model, User& TheUser, QWidget* Parent);

    QWidget& Widget() override { return *this; }
    void Follow(PropertyId What) override;
    void FollowAll() override;
    std::vector<QWidget*> TabStops() override { return {this}; }

    const ListBox& Box() const { return TheBox; }
    void keyboardSearch(const QString& Letters) override;

  protected:
    bool event(QEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseMoveEvent(QMouseEvent*) override {} // dragging chooses nothing
    void mouseReleaseEvent(QMouseEvent*) override {}
    void mouseDoubleClickEvent(QMouseEvent* Event) override;

  private:
    void FollowLater();
    void FollowItems();
    void ShowChoice();
    void ShowColours();
    void Pick(int Entry);

    ListBox& TheBox;
    User& TheUser;
    EntryModel Entries;
    bool ItemsAreOld = false;
};

} // namespace orvane
