#include "view/window_menu.h"

#include "view/act.h"
#include "view/look.h"

#include <QLabel>

namespace orvane {

namespace {

constexpr QMargins EndMargins(8, 3, 10, 0);

} // namespace

WindowMenu::WindowMenu(const Menus& What, QWidget* Parent) : QMenuBar(Parent), End(new QLabel(this))
{
    setNativeMenuBar(false);
    setFont(look::Font(look::MenuPoints));
    for (const Menu& Each : What) {
        QMenu* Opened = addMenu(Each.Title);
        Opened->setFont(font());
        Fill(*Opened, Each.Entries);
        if (Each.IsOfLists)
            OfLists = Opened;
        if (Each.More)
            connect(Opened, &QMenu::aboutToShow, this,
                    [this, Opened, More = Each.More, Fixed = Opened->actions().size()] {
                        for (QAction* Old : Opened->actions().mid(Fixed))
                            delete Old;
                        Opened->addSeparator();
                        Act([&] { Fill(*Opened, More()); });
                    });
    }
    for (const auto& [Action, Words] : Offers)
        addAction(Action);
    End->setTextFormat(Qt::PlainText);
    End->setFont(font());
    End->setContentsMargins(EndMargins);
    setCornerWidget(End);
}

void WindowMenu::Fill(QMenu& Opened, const std::vector<MenuEntry>& Entries)
{
    for (const MenuEntry& Each : Entries) {
        QAction* Action = Opened.addAction(Each.Words);
        Action->setShortcut(Each.Key);
        Action->setCheckable(Each.IsChosen);
        Action->setChecked(Each.IsChosen);
        if (Each.Offered)
            Offers.emplace_back(Action, Each.Offered);
        Action->setVisible(!Each.Offered);
        connect(Action, &QAction::triggered, this, [Run = Each.Run] { Act(Run); });
    }
}

void WindowMenu::ShowAtTheEnd(const QString& Words)
{
    if (End->text() == Words)
        return;
    End->setText(Words);
    setAccessibleDescription(Words); // a bar tells readers of its menus only
    setCornerWidget(End);            // makes room for it
    End->show();
}

void WindowMenu::ShowOffers()
{
    for (const auto& [Action, Now] : Offers) {
        const QString Words = Now();
        Action->setText(Words);
        Action->setVisible(!Words.isEmpty());
    }
}

void WindowMenu::OpenForList(const QPoint& Where)
{
    if (OfLists != nullptr)
        OfLists->popup(Where);
}

void WindowMenu::TakeColours(const QPixmap& Background)
{
    const look::BarColours Colours = look::BarOn(Background);
    QPalette New = palette();
    New.setColor(QPalette::Window, Colours.BarGround);
    for (const auto Role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        New.setColor(Role, Colours.Words);
    setPalette(New);
    End->setPalette(New);
    for (QMenu* Each : findChildren<QMenu*>())
        Each->setPalette(look::Palette());
}

} // namespace orvane
