#include "stage.h"
#include "view/menu_bar_view.h"
#include "view/side_menu_view.h"

namespace orvane {

class SideMenuOnScreen : public Stage
{
  protected:
    void Open()
    {
        const SideMenu::Colours Colours{Black, White, White, RGB(100, 100, 100)};
        Atelier().Bar_Menus.Build(
            {{"Métiers",
              "Liste des métiers",
              "",
              Colours,
              {},
              {{"Couture", "Couture", 0, "Coudre"}, {"Forge", "Forge", 1, ""}}},
             {"Panier", "Panier", "", Colours, {}, {{"Ouvrir", "Voir le panier", 2, ""}}}});
        Atelier().Bar_Menus.OnItemClick = [this](const SideMenu::Item& Item) {
            Clicked.push_back(Item.Key);
        };
        Show();
    }
    MenuEntryView& Entry(const char* Key)
    {
        return *dynamic_cast<MenuEntryView*>(
            The<SideMenuView>(Atelier().Bar_Menus).findChild<QWidget*>(Key));
    }

    std::vector<std::string> Clicked;
};

TEST_F(SideMenuOnScreen, AClickGoesThroughTheDoor)
{
    Open();
    QTest::mouseClick(&Entry("Forge"), Qt::LeftButton);
    EXPECT_EQ(Clicked, std::vector<std::string>{"Forge"});
}

TEST_F(SideMenuOnScreen, TheKeysGoThroughAllBars)
{
    Open();
    Entry("Couture").setFocus();
    Press(Qt::Key_Up);
    Press(Qt::Key_Return);
    Press(Qt::Key_Down);
    Press(Qt::Key_Space);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Press(Qt::Key_Enter);
    EXPECT_EQ(Clicked, (std::vector<std::string>{"Couture", "Forge", "Ouvrir"}));
}

TEST_F(SideMenuOnScreen, TabStopsOnceAndComesBackWhereItLeft)
{
    Open();
    Entry("Couture").setFocus();
    Press(Qt::Key_Down);
    Press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &The<QWidget>(Atelier().txt_Nombre));
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &Entry("Forge"));
}

TEST_F(SideMenuOnScreen, ReadersAreToldTheEntry)
{
    Open();
    EXPECT_EQ(Entry("Ouvrir").accessibleName(), "Voir le panier");
    EXPECT_EQ(Entry("Couture").toolTip(), "Coudre");
}

TEST_F(SideMenuOnScreen, AMenuRebuiltByItsOwnClickIsSafe)
{
    Open();
    SideMenu& Menu = Atelier().Bar_Menus;
    Menu.OnItemClick = [&](const SideMenu::Item&) {
        Menu.Build({{"Seul", "Seul", "", {}, {}, {{"Nouveau", "Nouveau", 0, ""}}}});
    };
    QTest::mouseClick(&Entry("Forge"), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Entry("Nouveau").accessibleName(), "Nouveau");
    EXPECT_TRUE(Entry("Nouveau").isVisible());
}

TEST_F(SideMenuOnScreen, AMenuTooLongForItsBoxKeepsTheFocusInSight)
{
    Open();
    Atelier().Bar_Menus.Height = 90 * TwipsPerPixel;
    Entry("Ouvrir").setFocus();
    auto& View = The<SideMenuView>(Atelier().Bar_Menus);
    const QRect Seen(Entry("Ouvrir").mapTo(&View, QPoint(0, 0)), Entry("Ouvrir").size());
    EXPECT_TRUE(View.rect().contains(Seen));
}

} // namespace orvane
