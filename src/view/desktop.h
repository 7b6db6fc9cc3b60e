#pragma once

#include "toolkit/colour.h"
#include "toolkit/forms.h"
#include "view/order_panel.h"
#include "view/window_menu.h"

#include <QElapsedTimer>
#include <QObject>

#include <map>
#include <memory>

namespace orvane {

class ScreenWindow;
class User;

// Keeps a window for each screen, built when the screen is first shown.
class Desktop : public QObject, public FormsObserver
{
  public:
    // TheMenus stand in every window, and the order beside its screen where there is room.
    Desktop(Forms& TheForms, User& TheUser, Menus TheMenus = {}, OrderSource Order = {});
    ~Desktop() override;

    void Shown(Screen& Which) override;
    void Hidden(Screen& Which) override;

    // From then on everything is painted with these.
    void TakeColours(const std::map<std::string, Colour>& Given);

    // An event has ended: these words stand at the right of every window's menu bar, and the order
    // is read afresh where it is seen.
    void ShowInMenuBars(const QString& Words);

    // Tells what pressing that button has done, in its own window.
    void Answer(const Control& Pressed, const QString& Words);

    ScreenWindow* WindowOf(const Screen& Which) const; // nothing before its first showing

  protected:
    bool eventFilter(QObject* Target, QEvent* Event) override;

  private:
    ScreenWindow& Built(Screen& Which);
    void Place(ScreenWindow& Window) const;
    bool Awaits() const;
    void Focused(ScreenWindow& Window);
    void ShowFocus();

    Forms& TheForms;
    User& TheUser;
    Menus TheMenus;
    OrderSource Order;
    std::map<const Screen*, std::unique_ptr<ScreenWindow>> Windows;
    QString InMenuBars;
    bool KeysAreUsed = false; // from then on every window shows where the focus is
    const ScreenWindow* LastShown = nullptr;

    // The window that the model has asked the desktop to focus. Until it is, the desktop may pass
    // the focus to others by itself, which is nobody's wish.
    const ScreenWindow* Expected = nullptr;
    QElapsedTimer SinceExpected;
};

} // namespace orvane
