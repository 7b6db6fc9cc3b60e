#include "support/expect_fails.h"
#include "support/temp_folder.h"
#include "toolkit/picture.h"
#include "toolkit/picture_file.h"

#include <sys/stat.h>

namespace orvane {

namespace fs = std::filesystem;
using namespace std::string_literals;
using Names = std::vector<std::string>;

namespace {

const std::string Gif = "GIF89a\0;"s;
const std::string Png = "\x89PNG IHDR IDAT \0\0\0\0IEND\xAE\x42\x60\x82"s;
const std::string Jpeg = "\xFF\xD8\xFF\xE0 \xFF\x00 \xFF\xD9"s;
const std::string Bmp = "BM\x0A\0\0\0....."s; // ten bytes and one
// Two icons: of 4 bytes at 38, of 2 at 42.
const std::string Ico = "\0\0\1\0\2\0"s + "........\4\0\0\0\x26\0\0\0"s +
                        "........\2\0\0\0\x2A\0\0\0"s + "icônes"s.substr(0, 6);

} // namespace

class PictureTest : public testing::Test
{
  protected:
    TempFolder Folder;
    const fs::path Epee = Folder.Write("Images/Épée.png", Gif);
    PictureFiles Files{Folder.Path()};
};

TEST_F(PictureTest, AFileIsFoundWhateverTheCaseOfItsNameAndFolder)
{
    for (const char* Name : {"Images/Épée.png", "images/épée.PNG", "IMAGES/ÉPÉE.png"})
        EXPECT_EQ(Files.LoadOr(Folder / Name).File, Epee) << Name;
    for (const char* Name : {"Images/Epee.png", "Absent/Épée.png", "images"})
        EXPECT_TRUE(Files.LoadOr(Folder / Name).IsEmpty()) << Name;
    const auto Other = Folder.Write("Images/épée.png", Png);
    EXPECT_EQ(Files.LoadOr(Other).File, Other) << "the exact name goes first";
}

TEST_F(PictureTest, WhatCannotBeHadGivesThePlaceholderAndIsToldOnceWithWhatIsWrong)
{
    const TempFolder Elsewhere;
    Folder.Write("vide.png", "");
    fs::create_symlink(Elsewhere.Write("a.png", Png), Folder / "Images/dehors.png");
    fs::create_symlink(Folder / "nulle part", Folder / "Images/lien.png");
    fs::create_symlink(Elsewhere.Path(), Folder / "Images/ailleurs");
    ASSERT_EQ(::mkfifo((Folder / "un tuyau.png").c_str(), 0600), 0);
    const char* const Rows[] = {
        "Images/../../a.png", "Images/ailleurs/a.png", "Images/dehors.png", "Images/lien.png",
        "absent.png",         "un tuyau.png",          "vide.png"};
    for (const char* Name : Rows)
        EXPECT_EQ(Files.LoadOr(Folder / Name, {Epee}), Picture{Epee}) << Name;
    EXPECT_EQ(Files.TakeMissing(),
              (Names{"Images/../../a.png (hors de son dossier)",
                     "Images/ailleurs/a.png (hors de son dossier)",
                     "Images/dehors.png (hors de son dossier)", "Images/lien.png", "absent.png",
                     "un tuyau.png (illisible)", "vide.png (illisible)"}));
    Files.LoadOr(Folder / "absent.png");
    EXPECT_TRUE(Files.TakeMissing().empty());
    Folder.Write("absent.png", "un texte");
    Files.LoadOr(Folder / "absent.png");
    EXPECT_EQ(Files.TakeMissing(), Names{"absent.png (illisible)"});
    fs::create_symlink(Epee, Folder / "dedans.png");
    EXPECT_EQ(Files.LoadOr(Folder / "dedans.png").File, fs::canonical(Epee));
}

TEST_F(PictureTest, OnlyAFileThatBeginsAndEndsAsOneIsAPicture)
{
    const std::string Filling(20000, 'x');
    const std::string Long = Png.substr(0, 8) + Filling + Png.substr(8);
    for (const std::string& Content :
         {Gif, Png, Jpeg, Bmp, Ico, Long, Long + std::string(100, '\0')}) {
        const auto File = Folder.Write("entier", Content);
        EXPECT_TRUE(IsWholePicture(File, Content.size())) << Content;
        EXPECT_EQ(PictureContent(File), Content);
        EXPECT_FALSE(Files.LoadOr(File).IsEmpty());
    }
    for (const std::string& Content :
         {Gif.substr(0, 7), Png.substr(0, Png.size() - 1), Jpeg.substr(0, Jpeg.size() - 1),
          Bmp.substr(0, 9), Ico.substr(0, Ico.size() - 1), Long.substr(0, 15000), Long + Filling,
          "un texte\0;"s, "\x89P"s}) {
        const auto File = Folder.Write("coupé", Content);
        EXPECT_FALSE(IsWholePicture(File, Content.size())) << Content;
        EXPECT_EQ(PictureContent(File), "");
    }
}

TEST_F(PictureTest, AFileReplacedUnderItsNameIsAnotherPicture)
{
    const Picture First = Files.LoadOr(Epee);
    EXPECT_EQ(Files.LoadOr(Epee), First);
    fs::rename(Folder.Write("neuve.png", Gif), Epee);
    EXPECT_NE(Files.LoadOr(Epee), First);
}

TEST_F(PictureTest, AnImageListCountsFromOneAndTellsWhatItLacks)
{
    ImageList List;
    Folder.Write("ico2.png", Png);
    List.Fill(Files, Folder.Path(), "ancien", 3, 32);
    List.Fill(Files, Folder.Path(), "ico", 2, 16);
    EXPECT_FAILS(Program, List.Picture(0));
    EXPECT_FAILS(Program, List.Picture(3));
    EXPECT_TRUE(List.Picture(1).IsEmpty());
    EXPECT_EQ(List.Picture(2).File, Folder / "ico2.png");
    EXPECT_EQ(Files.TakeMissing(),
              (Names{"ancien1.png", "ancien2.png", "ancien3.png", "ico1.png"}));
}

} // namespace orvane
