#include "support/expect_fails.h"
#include "support/temp_folder.h"
#include "toolkit/picture.h"

namespace orvane {

class PictureTest : public testing::Test
{
  protected:
    TempFolder Folder;
    const std::filesystem::path Epee = Folder.Write("Images/Épée.png", "x");
};

TEST_F(PictureTest, AFileIsFoundWhateverTheCaseOfItsNameAndFolder)
{
    for (const char* Name : {"Images/Épée.png", "images/épée.PNG", "IMAGES/ÉPÉE.png"})
        EXPECT_EQ(PictureFiles::Load(Folder / Name).File, Epee) << Name;
    EXPECT_FAILS(NoPicture, PictureFiles::Load(Folder / "Images/Epee.png")); // accents count
    EXPECT_FAILS(NoPicture, PictureFiles::Load(Folder / "Absent/Épée.png"));
    EXPECT_FAILS(NoPicture, PictureFiles::Load(Folder / "images"));
    EXPECT_FAILS(NoPicture, PictureFiles::Load({}));
}

TEST_F(PictureTest, TheExactNameGoesBeforeOneThatDiffersByCase)
{
    const auto Other = Folder.Write("Images/épée.png", "y");
    EXPECT_EQ(PictureFiles::Load(Folder / "Images/épée.png").File, Other);
    EXPECT_EQ(PictureFiles::Load(Epee).File, Epee);
}

TEST_F(PictureTest, WhatIsMissingGivesThePlaceholderAndIsRememberedOnce)
{
    PictureFiles Files;
    const Picture Placeholder{Epee};
    std::filesystem::create_symlink(Folder / "nulle part", Folder / "lien.png");
    EXPECT_EQ(Files.LoadOr(Folder / "absent.png", Placeholder), Placeholder);
    EXPECT_TRUE(Files.LoadOr(Folder / "absent.png").IsEmpty());
    EXPECT_TRUE(Files.LoadOr(Folder / "lien.png").IsEmpty());
    EXPECT_EQ(Files.LoadOr(Folder / "images/épée.png", {}).File, Epee);
    EXPECT_EQ(Files.TakeMissing(), (std::vector<std::string>{(Folder / "absent.png").string(),
                                                             (Folder / "lien.png").string()}));
    Files.LoadOr(Folder / "absent.png");
    EXPECT_TRUE(Files.TakeMissing().empty()) << "told once";
}

TEST_F(PictureTest, AnImageListCountsFromOne)
{
    ImageList List;
    List.Fill(Folder.Path(), "ico", 2, 16);
    EXPECT_EQ(List.Count(), 2);
    EXPECT_EQ(List.Size(), 16);
    EXPECT_EQ(List.Picture(2).File, Folder / "ico2.png");
    EXPECT_FAILS(Program, List.Picture(0));
    EXPECT_FAILS(Program, List.Picture(3));
    List.Fill(Folder.Path(), "ico", 1, 32);
    EXPECT_EQ(List.Count(), 1);
}

} // namespace orvane
