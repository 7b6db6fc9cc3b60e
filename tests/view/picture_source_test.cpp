#include "support/temp_folder.h"
#include "view/picture_source.h"
#include "view/qt_text.h"

#include <gtest/gtest.h>

namespace orvane {

class DecodedPicture : public ::testing::Test
{
  protected:
    std::filesystem::path Write(const char* Name, int Width, int Height, Qt::GlobalColor Colour)
    {
        QImage Image(Width, Height, QImage::Format_RGB32);
        Image.fill(Colour);
        const auto File = Folder.Path() / Name;
        EXPECT_TRUE(Image.save(ToQt(File.string())));
        return File;
    }

    TempFolder Folder;
    PictureSource Source;
};

TEST_F(DecodedPicture, FillsABoxOrKeepsItsProportions)
{
    Source.Set({Write("a.png", 40, 20, Qt::red)});
    EXPECT_EQ(Source.For({100, 100}, 1, PictureSource::Fit::Whole).size(), QSize(100, 100));
    Source.Set({Folder.Path() / "a.png"});
    EXPECT_EQ(Source.For({20, 20}, 1, PictureSource::Fit::KeepingProportions).size(),
              QSize(20, 10));
    EXPECT_EQ(Source.For({90, 90}, 1, PictureSource::Fit::KeepingProportions).size(), QSize(40, 20))
        << "never larger than its file";
}

TEST_F(DecodedPicture, TakesTheDenseFileOnADenseScreen)
{
    Write("a@2x.png", 40, 40, Qt::blue);
    Source.Set({Write("a.png", 20, 20, Qt::red)});
    const auto ColourAt = [&](double Density) {
        return Source.For({20, 20}, Density, PictureSource::Fit::KeepingProportions)
            .toImage()
            .pixelColor(5, 5);
    };
    EXPECT_EQ(ColourAt(1), QColor(Qt::red));
    EXPECT_EQ(ColourAt(2), QColor(Qt::blue));
    EXPECT_EQ(Source.For({20, 20}, 2, PictureSource::Fit::KeepingProportions).size(),
              QSize(40, 40));
}

TEST_F(DecodedPicture, IsNullWhenThereIsNothingToDecode)
{
    EXPECT_TRUE(Source.For({10, 10}, 1, PictureSource::Fit::Whole).isNull());
    Source.Set({Folder.Write("faux.png", "ceci n'est pas une image")});
    EXPECT_TRUE(Source.For({10, 10}, 1, PictureSource::Fit::Whole).isNull());
    Source.Set({Folder.Path() / "absent.png"});
    EXPECT_TRUE(Source.For({10, 10}, 1, PictureSource::Fit::Whole).isNull());
}

TEST_F(DecodedPicture, IsKnownByItsContentWhateverItsExtension)
{
    Write("a.png", 10, 10, Qt::red);
    std::filesystem::rename(Folder.Path() / "a.png", Folder.Path() / "a.gif");
    Source.Set({Folder.Path() / "a.gif"});
    EXPECT_FALSE(Source.For({10, 10}, 1, PictureSource::Fit::Whole).isNull());
}

} // namespace orvane
