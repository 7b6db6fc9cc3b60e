#pragma once

#include "toolkit/screen.h"
#include "view/window_menu.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

namespace orvane {

class Announcer;
class ScreenArea;
class User;

// The window of one screen: the menu that all windows bear, and the screen's area below it.
class ScreenWindow : public QWidget, public ScreenObserver
{
  public:
    ScreenWindow(Screen& Model, User& TheUser, const Menus& TheMenus);
    ~ScreenWindow() override;

    Screen& Model() const { return TheScreen; }
    std::function<void()> OnFocused; // the desktop has made it the active window

    void ShowInMenuBar(const QString& Words)
    {
        TheMenu->ShowAtTheEnd(Words);
        TheMenu->ShowOffers();
    }

    // What an action has done, for who listens; the button that was pressed glows for who looks.
    void Answer(const Control& Pressed, const QString& Words);

    void ShowColours(); // that a skin has brought

    void FocusFirstInput();
    void FocusFirstWrong(); // of the open boxes that are marked, if there is one

    void ControlChanged(Control& Which, PropertyId What) override;
    void ScreenChanged(PropertyId What) override;

  protected:
    bool event(QEvent* Event) override;
    void closeEvent(QCloseEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void contextMenuEvent(QContextMenuEvent* Event) override;

  private:
    void ShowSize();
    void AnswerChanged(const TextBox& Figure);
    void TellAnswers();
    void PressButton(QKeyEvent& Pressed);
    void Close();

    Screen& TheScreen;
    User& TheUser;
    WindowMenu* TheMenu;
    ScreenArea* Area;
    Announcer* TheAnnouncer;
    QTimer Settling; // after a change of a figure that is told
    std::vector<const TextBox*> Changed;
};

} // namespace orvane
