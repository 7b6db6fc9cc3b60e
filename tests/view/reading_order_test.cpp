#include "toolkit/forms.h"
#include "toolkit/placing.h"
#include "view/reading_order.h"

#include <deque>
#include <gtest/gtest.h>

namespace orvane {

class OrderOfReading : public ::testing::Test
{
  protected:
    void Panel(Box At) { PlacePanel(Panels.emplace_back(Page, "shp"), At); }
    void Input(const std::string& Name, Box At) { Place(Inputs.emplace_back(Page, Name), At); }
    std::string Read()
    {
        std::string Result;
        for (const Control* Each : ReadingOrder(Page))
            Result += Each->Name() + " ";
        return Result;
    }

    Forms TheForms;
    Screen Page{TheForms, "frm_Page", ""};
    std::deque<Shape> Panels;
    std::deque<TextBox> Inputs;
};

TEST_F(OrderOfReading, RowsThenFromLeftToRight)
{
    Input("d", {200, 60, 50, 24});
    Input("c", {10, 62, 50, 20}); // on that row, though a little lower
    Input("b", {200, 10, 50, 24});
    Input("a", {10, 10, 50, 24});
    EXPECT_EQ(Read(), "a b c d ");
}

TEST_F(OrderOfReading, ColumnsOfPanelsBeforeRowsAcrossThem)
{
    Panel({0, 0, 300, 100});
    Panel({0, 110, 300, 100});
    Panel({310, 0, 300, 100});
    Panel({310, 110, 300, 100});
    Input("c", {320, 10, 50, 24});
    Input("b", {10, 120, 50, 24});
    Input("d", {320, 120, 50, 24});
    Input("a", {10, 10, 50, 24});
    EXPECT_EQ(Read(), "a b c d ");
}

TEST_F(OrderOfReading, ARowOfButtonsBelowThePanelsComesLast)
{
    Panel({0, 0, 300, 100});
    Panel({310, 0, 300, 100});
    Input("x", {10, 200, 100, 40});
    Input("y", {400, 200, 100, 40});
    Input("a", {10, 10, 50, 24});
    Input("b", {320, 10, 50, 24});
    EXPECT_EQ(Read(), "a b x y ");
}

TEST_F(OrderOfReading, AMenuAtTheLeftComesFirstThenWhatIsBesideIt)
{
    SideMenu Menu(Page, "menu");
    Place(Menu, {0, 0, 100, 500});
    Panel({110, 60, 300, 300});
    Panel({420, 60, 300, 300});
    Input("head", {110, 10, 500, 30});
    Input("a", {120, 70, 50, 24});
    Input("b", {430, 70, 50, 24});
    Input("foot", {110, 400, 500, 30});
    EXPECT_EQ(Read(), "menu head a b foot ");
}

TEST_F(OrderOfReading, HiddenControlsAndPanelsDoNotCount)
{
    Panel({0, 0, 600, 300});
    Panels.back().Visible = false;
    Input("hidden", {10, 10, 50, 24});
    Inputs.back().Visible = false;
    Input("a", {10, 50, 50, 24});
    EXPECT_EQ(Read(), "a ");
}

} // namespace orvane
