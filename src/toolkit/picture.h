#pragma once

#include "base/file_stamp.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// A picture is the file it came from, in the state in which it was loaded; decoding is for whoever
// draws it, when it is first seen.
struct Picture
{
    std::filesystem::path File;        // empty: no picture
    std::filesystem::path Otherwise{}; // seen in its place when it proves damaged
    FileStamp Stamp{};

    bool IsEmpty() const { return File.empty(); }

    friend bool operator==(const Picture&, const Picture&) = default;
};

// Finds the picture files of a program's folder, and remembers which ones couldn't be had, to be
// said once, together.
class PictureFiles
{
  public:
    explicit PictureFiles(std::filesystem::path Folder) : Folder(std::move(Folder)) {}

    // The picture at a path, found whatever the case of its name. Otherwise when it is missing, is
    // no whole picture or lies outside the folder, which is remembered.
    Picture LoadOr(const std::filesystem::path& File, const Picture& Otherwise = {});

    // The files that couldn't be had since the last call, below the folder, with what is wrong with
    // them unless they are missing; each is given once.
    std::vector<std::string> TakeMissing();

  private:
    // What is wrong with the file, or nothing: Found is the picture then.
    std::optional<std::string_view> Fault(const std::filesystem::path& File, Picture& Found);
    bool IsInside(const std::filesystem::path& File);

    std::filesystem::path Folder;
    std::filesystem::path LastInside; // pictures come from one folder after another
    std::set<std::string> Missing;
    std::set<std::string> Told;
};

// Pictures by number from 1, all of one size.
class ImageList
{
  public:
    // Files Stem1.png to Stem<Count>.png; Size in pixels, square.
    void Fill(PictureFiles& Files, const std::filesystem::path& Folder, const std::string& Stem,
              int Count, int Size);

    // Failure (FailureKind::Program) for an index that isn't there.
    const orvane::Picture& Picture(int Index) const;
    int Count() const { return static_cast<int>(Pictures.size()); }
    int Size() const { return TheSize; }

  private:
    std::vector<orvane::Picture> Pictures;
    int TheSize = 0;
};

} // namespace orvane
