#include "support/expect_fails.h"
#include "support/temp_folder.h"
#include "toolkit/picture.h"

#include <sys/stat.h>

namespace orvane {

class PictureTest : public testing::Test
{
  protected:
    TempFolder Folder;
    const std::filesystem::path Epee = Folder.Write("Images/Épée.png", "GIF89a");
};

TEST_F(PictureTest, AFileIsFoundWhateverTheCaseOfItsNameAndFolder)
{
    for (const char* Name : {"Images/Épée.png", "images/épée.PNG", "IMAGES/ÉPÉE.png"})
        EXPECT_EQ(PictureFiles::Load(Folder / Name).File, Epee) << Name;
    for (const char* Name : {"Images/Epee.png", "Absent/Épée.png", "images"}) {
        SCOPED_TRACE(Name);
        EXPECT_FAILS(NoPicture, PictureFiles::Load(Folder / Name));
    }
    EXPECT_FAILS(NoPicture, PictureFiles::Load({}));
    const auto Other = Folder.Write("Images/épée.png", "BM");
    EXPECT_EQ(PictureFiles::Load(Other).File, Other) << "the exact name goes first";
}

TEST_F(PictureTest, WhatIsMissingGivesThePlaceholderAndIsToldOnce)
{
    PictureFiles Files;
    std::filesystem::create_symlink(Folder / "nulle part", Folder / "lien.png");
    EXPECT_EQ(Files.LoadOr(Folder / "absent.png", {Epee}).File, Epee);
    EXPECT_TRUE(Files.LoadOr(Folder / "lien.png").IsEmpty());
    EXPECT_EQ(Files.TakeMissing(), (std::vector<std::string>{(Folder / "absent.png").string(),
                                                             (Folder / "lien.png").string()}));
    Files.LoadOr(Folder / "absent.png");
    EXPECT_TRUE(Files.TakeMissing().empty());
}

TEST_F(PictureTest, WhatIsNoPictureCountsAsMissing)
{
    PictureFiles Files;
    ASSERT_EQ(::mkfifo((Folder / "un tuyau.png").c_str(), 0600), 0);
    std::vector<std::string> Told;
    for (const auto& File :
         {Folder.Write("coupé.png", "\x89P"), Folder.Write("texte.gif", "un GIF8"),
          Folder / "un tuyau.png", Folder.Write("vide.png", "")}) {
        EXPECT_EQ(Files.LoadOr(File, {Epee}), Picture{Epee}) << File;
        Told.push_back(File.string());
    }
    EXPECT_EQ(Files.TakeMissing(), Told);
}

TEST_F(PictureTest, AnImageListCountsFromOne)
{
    ImageList List;
    List.Fill(Folder.Path(), "ancien", 9, 32);
    List.Fill(Folder.Path(), "ico", 2, 16);
    EXPECT_FAILS(Program, List.Picture(0));
    EXPECT_FAILS(Program, List.Picture(3));
    EXPECT_EQ(List.Picture(2).File, Folder / "ico2.png");
}

} // namespace orvane
