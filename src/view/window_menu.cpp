#include "view/window_menu.h"

#include "view/act.h"
#include "view/look.h"

namespace orvane {

WindowMenu::WindowMenu(const Menus& What, QWidget* Parent) : QMenuBar(Parent)
{
    setNativeMenuBar(false);
    setFont(look::Font(look::MenuPoints));
    for (const Menu& Each : What) {
        QMenu* Opened = addMenu(Each.Title);
        Opened->setFont(font());
        for (const MenuEntry& Entry : Each.Entries) {
            QAction* Action = Opened->addAction(Entry.Words);
            Action->setShortcut(Entry.Key);
            connect(Action, &QAction::triggered, this, [Run = Entry.Run] { Act(Run); });
        }
    }
}

void WindowMenu::TakeColours(const QPixmap& Background)
{
    const look::BarColours Colours = look::BarOn(Background);
    QPalette New = palette();
    New.setColor(QPalette::Window, Colours.BarGround);
    for (const auto Role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        New.setColor(Role, Colours.Words);
    setPalette(New);
    for (QMenu* Each : findChildren<QMenu*>())
        Each->setPalette(look::Palette());
}

} // namespace orvane
