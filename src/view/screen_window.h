#pragma once

#include "toolkit/screen.h"
#include "view/order_panel.h"
#include "view/window_menu.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

namespace orvane {

class Announcer;
class ScreenArea;
class User;

// The window of one screen: the menu that all windows bear, and the screen's area below it. On a
// screen that is too small, or where a person makes the window smaller or larger, the area is
// scaled as a whole; the room that is then left beside it shows the order in hand.
class ScreenWindow : public QWidget, public ScreenObserver
{
  public:
    // Without an order there is no panel for it.
    ScreenWindow(Screen& Model, User& TheUser, const Menus& TheMenus, OrderSource Order);
    ~ScreenWindow() override;

    Screen& Model() const { return TheScreen; }
    std::function<void()> OnFocused; // the desktop has made it the active window

    void ShowInMenuBar(const QString& Words);

    // Its place with frame and title, which a window that was never shown has to expect.
    QRect Framed() const;

    // There, or as near to it as the screen has room.
    void MoveOnScreen(QRect Frame);

    // What an action has done, for who listens; the button that was pressed glows for who looks.
    void Answer(const Control& Pressed, const QString& Words);

    void ShowColours(); // that a skin has brought

    void FocusFirstInput();
    void FocusFirstWrong(); // of the open boxes that are marked, if there is one

    void ControlChanged(Control& Which, PropertyId What) override;
    void ScreenChanged(PropertyId What) override;

  protected:
    bool event(QEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void closeEvent(QCloseEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void contextMenuEvent(QContextMenuEvent* Event) override;

  private:
    QSize Natural() const; // of the area, as its layout has it
    int BarHeight() const;
    void ShowSize();
    void LayOut(); // for the size that the window has
    void LayOutOrder(QRect Place);
    void AnswerChanged(const TextBox& Figure);
    void TellAnswers();
    void PressButton(QKeyEvent& Pressed);
    void Close();

    Screen& TheScreen;
    User& TheUser;
    WindowMenu* TheMenu;
    ScreenArea* Area;
    OrderSource Order;
    OrderPanel* TheOrder = nullptr; // made when there is first room for it
    Announcer* TheAnnouncer;
    QTimer Settling; // after a change of a figure that is told
    std::vector<const TextBox*> Changed;
};

} // namespace orvane
