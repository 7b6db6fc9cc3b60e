#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace orvane {

// A picture is the file it came from; decoding is for whoever draws it, when it is first seen.
struct Picture
{
    std::filesystem::path File;        // empty: no picture
    std::filesystem::path Otherwise{}; // seen in its place when it proves damaged

    bool IsEmpty() const { return File.empty(); }

    friend bool operator==(const Picture&, const Picture&) = default;
};

// Whether somebody may open the file as a picture: a readable file, no pipe, that begins as one of
// the formats does. What comes behind shows when it is decoded.
bool IsPictureFile(const std::filesystem::path& File);

// Pictures by number from 1, all of one size.
class ImageList
{
  public:
    // Files Stem1.png to Stem<Count>.png of Folder; Size in pixels, square.
    void Fill(const std::filesystem::path& Folder, const std::string& Stem, int Count, int Size);

    // Failure (FailureKind::Program) for an index that isn't there.
    const orvane::Picture& Picture(int Index) const;
    int Count() const { return static_cast<int>(Pictures.size()); }
    int Size() const { return TheSize; }

  private:
    std::vector<orvane::Picture> Pictures;
    int TheSize = 0;
};

// Finds picture files and remembers what was missing or no picture, to be said once, together.
class PictureFiles
{
  public:
    // The picture at a path, found whatever the case of its name. Failure (FailureKind::NoPicture).
    static Picture Load(const std::filesystem::path& File);

    // The same, but a picture that can't be had gives Otherwise and is remembered.
    Picture LoadOr(const std::filesystem::path& File, const Picture& Otherwise = {});

    // The files that couldn't be had since the last call; each is given once.
    std::vector<std::string> TakeMissing();

  private:
    std::set<std::string> MissingFiles;
    std::set<std::string> ToldFiles;
};

} // namespace orvane
