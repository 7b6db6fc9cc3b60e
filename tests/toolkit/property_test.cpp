#include "toolkit/small_screen.h"

namespace orvane {

namespace {

class Listener : public ScreenObserver
{
  public:
    void ControlChanged(Control& Which, PropertyId What) override
    {
        Heard += Which.Name() + ":" + std::to_string(static_cast<int>(What)) + ";";
    }
    void ScreenChanged(PropertyId What) override
    {
        Heard += "screen:" + std::to_string(static_cast<int>(What)) + ";";
    }

    // What was heard since the last time.
    std::string Take() { return std::exchange(Heard, {}); }

  private:
    std::string Heard;
};

std::string Entry(const std::string& Who, PropertyId What)
{
    return Who + ":" + std::to_string(static_cast<int>(What)) + ";";
}

} // namespace

class PropertyTest : public ScreenTest
{
  protected:
    PropertyTest() { A.Observe(&Ear); }

    Listener Ear;
    SmallScreen& A = Get("A");
};

TEST_F(PropertyTest, AnObserverIsToldOnceOfAChangeAndNotOfTheSameValue)
{
    A.cmd_Action.Left = 15;
    EXPECT_EQ(Ear.Take(), Entry("cmd_Action", PropertyId::Left));
    A.cmd_Action.Left = 15;
    A.cmd_Action.Visible = true;
    A.cmd_Action.BackColor = White;
    EXPECT_EQ(Ear.Take(), "");
    A.Caption = "Autre";
    EXPECT_EQ(Ear.Take(), Entry("screen", PropertyId::Caption));
}

TEST_F(PropertyTest, ATextAndAChoiceAreToldToTheObserverBeforeHandlersRun)
{
    A.txt_Nb.OnChange = [&] { EXPECT_EQ(Ear.Take(), Entry("txt_Nb", PropertyId::Text)); };
    A.txt_Nb.Text = "3";
    EXPECT_EQ(Ear.Take(), "");
    A.lst_Objets.AddItem("Arc");
    EXPECT_EQ(Ear.Take(), Entry("lst_Objets", PropertyId::Items));
    A.lst_Objets.OnClick = [&] {
        EXPECT_EQ(Ear.Take(), Entry("lst_Objets", PropertyId::ListIndex));
    };
    A.lst_Objets.ListIndex = 0;
    EXPECT_EQ(Ear.Take(), "");
}

TEST(ColourTest, RedIsTheLowByteAndBlueTheHighOne)
{
    EXPECT_EQ(RGB(1, 2, 3).Number, 1 + 2 * 256 + 3 * 65536);
    constexpr Colour Given{0x00C0FF10};
    EXPECT_EQ(Given.Red(), 0x10);
    EXPECT_EQ(Given.Green(), 0xFF);
    EXPECT_EQ(Given.Blue(), 0xC0);
    EXPECT_EQ(InputGrey.Number, 12632256);
}

} // namespace orvane
