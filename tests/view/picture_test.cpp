#include "stage.h"
#include "support/temp_folder.h"
#include "view/button_view.h"
#include "view/picture_view.h"

#include <QImage>

namespace orvane {

class PicturesOnScreen : public Stage
{
  protected:
    // A plain red picture file.
    Picture Red(int Width, int Height)
    {
        QImage Image(Width, Height, QImage::Format_RGB32);
        Image.fill(Qt::red);
        const auto File = Folder.Path() / "rouge.png";
        EXPECT_TRUE(Image.save(ToQt(File.string())));
        return {File};
    }
    static QColor PixelOf(QWidget& Widget, QPoint At)
    {
        return Widget.grab().toImage().pixelColor(At);
    }
    static bool IsRed(QColor Seen) { return Seen.red() > 200 && Seen.green() < 60; }

    TempFolder Folder;
    int Clicks = 0;
};

TEST_F(PicturesOnScreen, AButtonIsClickedByMouseSpaceAndEnter)
{
    Atelier().cmd_Ajouter.OnClick = [this] { ++Clicks; };
    Show();
    auto& View = The<ButtonView>(Atelier().cmd_Ajouter);
    QTest::mouseClick(&View, Qt::LeftButton);
    EXPECT_EQ(Clicks, 1);
    View.setFocus();
    Press(Qt::Key_Space);
    Press(Qt::Key_Return);
    Press(Qt::Key_Enter);
    EXPECT_EQ(Clicks, 4);
}

TEST_F(PicturesOnScreen, AButtonTellsItsWordsAndItsTip)
{
    Show();
    EXPECT_EQ(The<ButtonView>(Atelier().cmd_Ajouter).accessibleName(), "Ajouter");
    EXPECT_EQ(The<ButtonView>(Atelier().cmd_Ajouter).toolTip(), "Ajouter au panier");
    EXPECT_EQ(The<ButtonView>(Atelier().cmd_Retour).toolTip(), "Retour");
}

// Hovered and pressed pictures are tinted, and still to be seen; with and without transparency.
TEST_F(PicturesOnScreen, AHoveredOrPressedButtonStillShowsItsPicture)
{
    Atelier().cmd_Ajouter.Picture = Red(60, 20);
    Show();
    auto& View = The<ButtonView>(Atelier().cmd_Ajouter);
    const QPoint Inside(30, 20);
    const QColor AtRest = PixelOf(View, Inside);
    View.setAttribute(Qt::WA_UnderMouse);
    const QColor Hovered = PixelOf(View, Inside);
    EXPECT_TRUE(Hovered.red() > 200 && Hovered.green() < 90);
    EXPECT_NE(Hovered, AtRest);
    View.setAttribute(Qt::WA_UnderMouse, false);
    View.setDown(true);
    const QColor Pressed = PixelOf(View, Inside);
    EXPECT_TRUE(Pressed.red() > 150 && Pressed.green() < 60);
    EXPECT_NE(Pressed, AtRest);
}

TEST_F(PicturesOnScreen, AButtonShowsItsPictureAndWithoutOneItsPlate)
{
    Show();
    auto& View = The<ButtonView>(Atelier().cmd_Ajouter);
    const QPoint Corner(10, 10);
    EXPECT_FALSE(IsRed(PixelOf(View, Corner)));
    Atelier().cmd_Ajouter.Picture = Red(60, 20);
    EXPECT_TRUE(IsRed(PixelOf(View, Corner)));
    EXPECT_TRUE(IsRed(PixelOf(View, {View.width() - 10, View.height() - 10})));
    std::filesystem::resize_file(Folder.Path() / "rouge.png", 10); // no picture any more
    Atelier().cmd_Ajouter.Picture = Picture{};
    Atelier().cmd_Ajouter.Picture = Picture{Folder.Path() / "rouge.png"};
    EXPECT_FALSE(IsRed(PixelOf(View, Corner))) << "a damaged file falls back to the words";
}

TEST_F(PicturesOnScreen, AnImageIsMadeSmallerButNeverLarger)
{
    Show();
    auto& View = The<PictureView>(Atelier().img_Blason); // 100 by 100
    Atelier().img_Blason.Picture = Red(400, 200);
    EXPECT_TRUE(IsRed(PixelOf(View, {3, 50})));
    EXPECT_FALSE(IsRed(PixelOf(View, {50, 10}))) << "its proportions are kept";
    Atelier().img_Blason.Picture = Picture{};
    Atelier().img_Blason.Picture = Red(20, 20);
    EXPECT_TRUE(IsRed(PixelOf(View, {50, 50}))) << "in the middle";
    EXPECT_FALSE(IsRed(PixelOf(View, {30, 50})));
}

TEST_F(PicturesOnScreen, AnImageThatListensIsReachedByKeyboard)
{
    Atelier().img_Blason.OnClick = [this] { ++Clicks; };
    Atelier().img_Blason.Tip = "Royaume de Valdren";
    Atelier().img_Blason.Picture = Red(50, 50);
    Show();
    auto& View = The<PictureView>(Atelier().img_Blason);
    EXPECT_TRUE(View.focusPolicy() & Qt::TabFocus);
    EXPECT_EQ(View.accessibleName(), "Royaume de Valdren");
    View.setFocus();
    Press(Qt::Key_Return);
    QTest::mouseClick(&View, Qt::LeftButton);
    EXPECT_EQ(Clicks, 2);
}

TEST_F(PicturesOnScreen, AnImageThatDoesNotListenTakesNoFocus)
{
    Atelier().img_Blason.Picture = Red(50, 50);
    Show();
    EXPECT_EQ(The<PictureView>(Atelier().img_Blason).focusPolicy(), Qt::NoFocus);
}

} // namespace orvane
