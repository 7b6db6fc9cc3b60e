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
    std::vector<QWidget*> TabStops() override;

    const ListBox& Box() const { return TheBox; }
    void LeaveKeyboardTo(ListBoxView& NewFirst); // perhaps itself
    void Pick(int Entry);                        // as a person's, if there is such an entry
    void keyboardSearch(const QString& Letters) override;

  protected:
    bool event(QEvent* Event) override;
    void initStyleOption(QStyleOptionFrame* Option) const override;
    void initViewItemOption(QStyleOptionViewItem* Option) const override;
    void paintEvent(QPaintEvent* Event) override;
    void currentChanged(const QModelIndex& Current, const QModelIndex& Previous) override;
    void selectionChanged(const QItemSelection& Now, const QItemSelection& Before) override;
    void focusInEvent(QFocusEvent* Event) override;
    void focusOutEvent(QFocusEvent* Event) override;
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
    void ShowFocus();
    void TellChoice();
    void Copy();

    ListBox& TheBox;
    User& TheUser;
    EntryModel Entries;
    bool ItemsAreOld = false;
    ListBoxView* First = this; // of the columns: it has the keyboard for all of them
};

} // namespace orvane
