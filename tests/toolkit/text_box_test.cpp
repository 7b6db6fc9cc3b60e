#include "toolkit/small_screen.h"

namespace orvane {

class TextBoxTest : public ScreenTest
{
  protected:
    SmallScreen& A = Get("A");
    TextBox& Box = A.txt_Nb;
};

TEST_F(TextBoxTest, ChangeRunsInsideTheAssignmentOfADifferentText)
{
    Box.OnChange = [&] { Log += "[" + Box.Text() + "]"; };
    Log.clear();
    Box.StartWith("0");
    Box.Text = "0";
    EXPECT_EQ(Log, "") << "the text of a definition runs nothing";
    Box.Text = "1";
    Log += "next line";
    Box.Text = "1";
    Box.Text = "1 ";
    EXPECT_EQ(Log, "[1]next line[1 ]");
}

TEST_F(TextBoxTest, ARepairInsideChangeRunsChangeAgain)
{
    Box.StartWith("5");
    Box.OnChange = [&] {
        if (Box.Text == "")
            Box.Text = "0";
        if (Box.Text == "0")
            Box.Text = "1";
        Log += Box.Text() + ";";
    };
    Log.clear();
    Box.Text = "";
    EXPECT_EQ(Box.Text(), "1");
    EXPECT_EQ(Log, "1;1;1;") << "the two repairs and the assignment itself";
}

TEST_F(TextBoxTest, AnInputIsMarkedUntilItHoldsANumberOfItsKind)
{
    const auto IsMarked = [this](NumberKind Kind, const char* Text) {
        Box.OpenFor(Kind);
        Box.Text = "?";
        Box.Text = Text;
        return Box.Marked();
    };
    for (const char* Text : {"00", "-3", "2,", "2,5", " 7 "})
        EXPECT_FALSE(IsMarked(NumberKind::Entier16, Text)) << Text;
    for (const char* Text : {"", "abc", "40000", "1 000"})
        EXPECT_TRUE(IsMarked(NumberKind::Entier16, Text)) << Text;
    EXPECT_FALSE(IsMarked(NumberKind::Montant, "40000,5"));
    EXPECT_TRUE(IsMarked(NumberKind::Montant, "12.5"));
    EXPECT_FALSE(IsMarked(NumberKind::None, "abc"));
    EXPECT_FALSE(Box.Locked());
    EXPECT_EQ(Box.BackColor(), InputGrey);
}

} // namespace orvane
