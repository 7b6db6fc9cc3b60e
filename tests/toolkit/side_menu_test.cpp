#include "toolkit/small_screen.h"

namespace orvane {

namespace {

SideMenu::Bar BarOf(const std::string& Key, int Items)
{
    SideMenu::Bar Made{Key, "Titre " + Key, "", {}, {}, {}};
    for (int i = 1; i <= Items; ++i)
        Made.Items.push_back(
            {Key + "_entrée_au_nom_assez_long_" + std::to_string(i), "Texte", i, ""});
    return Made;
}

} // namespace

class SideMenuTest : public ScreenTest
{
  protected:
    SideMenu& Menu = Shown("A").mnu_Menu;
};

TEST_F(SideMenuTest, EntriesOfAllBarsAreFoundByTheirKeys)
{
    Menu.Build({BarOf("a", 1), BarOf("b", 2)});
    ASSERT_NE(Menu.FindItem("b_entrée_au_nom_assez_long_2"), nullptr);
    EXPECT_EQ(Menu.FindItem("b_entrée_au_nom_assez_long_2")->Icon, 2);
    EXPECT_EQ(Menu.FindItem("a"), nullptr) << "a bar is no entry";
    Menu.Build({});
    EXPECT_EQ(Menu.FindItem("b_entrée_au_nom_assez_long_2"), nullptr);
}

TEST_F(SideMenuTest, AHandlerMayRebuildTheMenuAndStillReadItsEntry)
{
    Menu.Build({BarOf("a", 2)});
    Menu.OnItemClick = [this](const SideMenu::Item& Which) {
        Menu.Build({BarOf("b", 3)});
        Log += Which.Key;
    };
    Person.ClickItem(Menu, "a_entrée_au_nom_assez_long_2");
    EXPECT_EQ(Log, "a_entrée_au_nom_assez_long_2");
}

} // namespace orvane
