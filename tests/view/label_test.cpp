#include "stage.h"
#include "view/label_view.h"

namespace orvane {

class LabelOnScreen : public Stage
{
  protected:
    LabelView& View() { return The<LabelView>(Atelier().lbl_Nom); } // 100 by 24
};

TEST_F(LabelOnScreen, FollowsCaptionSizeAndWeight)
{
    Show();
    Atelier().lbl_Nom.Caption = "Total";
    Atelier().lbl_Nom.Bold = true;
    Atelier().lbl_Nom.FontSize = 12;
    EXPECT_EQ(View().text(), "Total");
    EXPECT_TRUE(View().font().bold());
    EXPECT_DOUBLE_EQ(View().font().pointSizeF(), 12);
}

TEST_F(LabelOnScreen, ShowsMarkupAndAmpersandsAsTheyAre)
{
    Show();
    Atelier().lbl_Nom.Caption = "<b>Fer & acier</b>";
    EXPECT_EQ(View().textFormat(), Qt::PlainText);
    EXPECT_EQ(View().text(), "<b>Fer & acier</b>");
}

TEST_F(LabelOnScreen, ALongCaptionIsMadeSmallerThenToldInATip)
{
    Show();
    Atelier().lbl_Nom.Caption = "Une légende bien trop longue pour sa boîte";
    EXPECT_LT(View().font().pointSizeF(), 9);
    EXPECT_EQ(View().toolTip(), "Une légende bien trop longue pour sa boîte");
    Atelier().lbl_Nom.Caption = "Nom";
    EXPECT_DOUBLE_EQ(View().font().pointSizeF(), 9);
    EXPECT_EQ(View().toolTip(), "");
}

TEST_F(LabelOnScreen, IsDrawnInItsColour)
{
    Atelier().lbl_Nom.Caption = "■■■";
    Atelier().lbl_Nom.ForeColor = RGB(0, 0, 255);
    Show();
    const QImage Seen = Window().grab(View().geometry()).toImage();
    bool Found = false;
    for (int y = 0; y < Seen.height(); ++y)
        for (int x = 0; x < Seen.width(); ++x)
            Found = Found || Seen.pixelColor(x, y) == QColor(0, 0, 255);
    EXPECT_TRUE(Found);
}

} // namespace orvane
