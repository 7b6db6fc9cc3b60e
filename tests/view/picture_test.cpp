#include "stage.h"
#include "view/picture_source.h"

#include <QAbstractButton>
#include <QImage>
#include <QLabel>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace orvane {

class PicturesOnScreen : public Stage
{
  protected:
    PicturesOnScreen()
    {
        Make("plate.png", {40, 20});
        Make("high.png", {400, 200});
        Make("small.png", {20, 20});
        Make("dense.png", {20, 20});
        Make("dense@2x.png", {40, 40}, Qt::blue);
        Make("png.gif", {10, 10});
        Make("soft.gif", {20, 20});
        Make("soft.png", {20, 20}, Qt::blue);
        EXPECT_TRUE(QFile::copy(Folder.filePath("high.png"), Folder.filePath("cut.png")));
        EXPECT_TRUE(QFile::resize(Folder.filePath("cut.png"), 100));
        EXPECT_EQ(::mkfifo(File("pipe.png").File.c_str(), 0600), 0);
        EXPECT_EQ(::mkfifo(File("plate@2x.png").File.c_str(), 0600), 0);
    }
    void Make(const QString& Name, QSize Size, QColor Colour = Qt::red)
    {
        QImage Image(Size, QImage::Format_RGB32);
        Image.fill(Colour);
        EXPECT_TRUE(Image.save(Folder.filePath(Name), "PNG"));
    }
    Picture File(const QString& Name) { return {FromQt(Folder.filePath(Name))}; }
    PictureControl& Model(const QString& Name) { return dynamic_cast<PictureControl&>(Find(Name)); }
    static QColor Pixel(QWidget& Widget, QPoint At)
    {
        return Widget.grab().toImage().pixelColor(At);
    }

    QTemporaryDir Folder;
};

TEST_F(PicturesOnScreen, FillTheirBoxOrKeepTheirProportions)
{
    using enum PictureSource::Fit;
    const std::tuple<const char*, int, double, PictureSource::Fit, const char*> Cases[] = {
        {"plate.png", 100, 1, Whole, "100x100 #ff0000"},
        {"plate.png", 20, 1, KeepingProportions, "20x10 #ff0000"},
        {"plate.png", 90, 1, KeepingProportions, "40x20 #ff0000"}, // never larger than its file
        {"dense.png", 20, 1, KeepingProportions, "20x20 #ff0000"},
        {"dense.png", 20, 2, KeepingProportions, "40x40 #0000ff"},
        {"dense.png", 30, 1, KeepingProportions, "30x30 #0000ff"},
        {"dense.png", 90, 1, KeepingProportions, "40x40 #0000ff"},
        {"soft.gif", 20, 1, Whole, "20x20 #0000ff"},
        {"png.gif", 10, 1, Whole, "10x10 #ff0000"}, // known by its content
        {"plate.png", 20, 2, KeepingProportions, "40x20 #ff0000"},
        {"absent.png", 10, 1, Whole, "0x0 "},
        {"cut.png", 10, 1, Whole, "0x0 "},
        {"pipe.png", 10, 1, Whole, "0x0 "},
    };
    PictureSource Source;
    std::string Last;
    for (const auto& [Name, Side, Density, How, Expected] : Cases) {
        if (Name != std::exchange(Last, Name))
            Source.Set(File(Name));
        const QPixmap& Seen = Source.For({Side, Side}, Density, How);
        const QString Colour = Seen.isNull() ? "" : Seen.toImage().pixelColor(5, 5).name();
        const auto Told = QString("%1x%2 %3").arg(Seen.width()).arg(Seen.height()).arg(Colour);
        EXPECT_EQ(FromQt(Told), Expected) << Name;
    }
    Source.Set({File("cut.png").File, File("plate.png").File});
    EXPECT_EQ(Source.For({40, 40}, 1, KeepingProportions).size(), QSize(40, 20));
}

TEST_F(PicturesOnScreen, AreDecodedAfreshWhenTheirFileWasReplaced)
{
    Show();
    PictureFiles Files(FromQt(Folder.path()));
    const auto Load = [&] { Model("cmd_Ajouter").Picture = Files.LoadOr(File("plate.png").File); };
    Load();
    EXPECT_EQ(Pixel(The<QWidget>("cmd_Ajouter"), {10, 10}), QColor(Qt::red));
    Make("plate.png", {40, 20}, Qt::blue);
    Load();
    EXPECT_EQ(Pixel(The<QWidget>("cmd_Ajouter"), {10, 10}), QColor(Qt::blue));
}

// As on an old system: its bytes are no text of this one.
TEST_F(PicturesOnScreen, AreReadFromAFolderOfAnyName)
{
    const std::filesystem::path Old = std::filesystem::path(FromQt(Folder.path())) / "\xE9t\xE9";
    std::filesystem::create_directory(Old);
    std::filesystem::copy(File("plate.png").File, Old / "plate.png");
    std::filesystem::copy(File("dense.png").File, Old / "blason.png");
    PictureSource Source;
    Source.Set({Old / "plate.png"});
    EXPECT_FALSE(Source.For({40, 20}, 1, PictureSource::Fit::Whole).isNull());
    EXPECT_EQ(IconOf({Old / "blason.png"}).availableSizes(), QList<QSize>{QSize(20, 20)});
    EXPECT_TRUE(IconOf({Old / "absent.png"}).isNull());
}

TEST_F(PicturesOnScreen, FillAButtonAndStandInTheMiddleOfAnImage)
{
    Show();
    const std::tuple<const char*, const char*, QPoint, bool> Cases[] = {
        {"cmd_Ajouter", "plate.png", {10, 10}, true}, // 120 by 40
        {"cmd_Ajouter", "plate.png", {110, 30}, true},
        {"cmd_Ajouter", "absent.png", {10, 10}, false}, // its words on a plate
        {"img_Blason", "high.png", {3, 50}, true},      // 100 by 100
        {"img_Blason", "high.png", {50, 10}, false},
        {"img_Blason", "small.png", {50, 50}, true},
        {"img_Blason", "small.png", {30, 50}, false},
    };
    for (const auto& [Name, Picture, At, IsRed] : Cases) {
        Model(Name).Picture = File(Picture);
        EXPECT_EQ(Pixel(The<QWidget>(Name), At) == QColor(Qt::red), IsRed) << Name << Picture;
    }
}

// Hovered and pressed pictures are tinted, and still to be seen.
TEST_F(PicturesOnScreen, AreSeenOnAHoveredOrPressedButton)
{
    Show();
    Model("cmd_Ajouter").Picture = File("plate.png");
    auto& View = The<QAbstractButton>("cmd_Ajouter");
    EXPECT_EQ(Pixel(View, {30, 20}), QColor(Qt::red));
    View.setAttribute(Qt::WA_UnderMouse);
    const QColor Hovered = Pixel(View, {30, 20});
    EXPECT_TRUE(Hovered.red() > 200 && Hovered.green() > 0 && Hovered.green() < 90);
    View.setAttribute(Qt::WA_UnderMouse, false);
    View.setDown(true);
    const QColor Pressed = Pixel(View, {30, 20});
    EXPECT_TRUE(Pressed.red() > 150 && Pressed.red() < 255 && Pressed.green() < 60);
}

TEST_F(PicturesOnScreen, AreReachedByKeyboardWhenTheyListen)
{
    Show();
    auto& View = The<QWidget>("img_Blason");
    Model("img_Blason").Tip = "Royaume de Valdren";
    Model("img_Blason").Picture = File("plate.png");
    EXPECT_EQ(View.accessibleName(), "Royaume de Valdren");
    EXPECT_EQ(View.focusPolicy(), Qt::NoFocus);
    Model("img_Blason").OnClick = [this] { Log() << "clic"; };
    Model("img_Blason").Picture = File("dense.png");
    Model("img_Blason").Picture = Picture{}; // missing: its frame can still be clicked
    EXPECT_TRUE(View.focusPolicy() & Qt::TabFocus);
    EXPECT_NE(Pixel(View, {0, 50}), Pixel(View, {5, 50}));
    Play("<in img_Blason><Return><click img_Blason>");
    EXPECT_EQ(Seen(), "clic|clic");
}

using LabelOnScreen = Stage;

TEST_F(LabelOnScreen, FitsItsCaptionIntoItsBox)
{
    Show();
    Label& Model = Atelier().lbl_Nom; // 100 by 24, 9 points
    auto& View = The<QLabel>("lbl_Nom");
    const char* Long = "Une légende bien trop longue pour sa boîte";
    for (const auto& [Caption, Tip] : {std::pair(Long, Long), {"<b>Fer & a", ""}, {"Nom", ""}}) {
        Model.Caption = Caption;
        EXPECT_EQ(View.text(), Caption);
        EXPECT_EQ(View.toolTip(), Tip);
        EXPECT_EQ(View.font().pointSizeF() < 9, Caption == Long) << Caption;
    }
    EXPECT_EQ(View.textFormat(), Qt::PlainText);
    Model.Bold = true;
    Model.FontSize = 12;
    EXPECT_TRUE(View.font().bold());
    EXPECT_DOUBLE_EQ(View.font().pointSizeF(), 12);
    Model.Caption = "███"; // one patch
    Model.ForeColor = RGB(0, 0, 255);
    EXPECT_EQ(View.grab().toImage().pixelColor(15, 12), QColor(0, 0, 255));
}

} // namespace orvane
