#include "toolkit/picture.h"

#include "base/failure.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <fstream>

namespace orvane {

namespace fs = std::filesystem;

namespace {

// The path as the disk spells it, each name found without regard to case; empty when there is none.
fs::path FindIgnoringCase(const fs::path& File)
{
    std::error_code Error;
    if (fs::exists(File, Error))
        return File;
    if (!File.has_parent_path() || File.parent_path() == File)
        return {};
    const fs::path Folder = FindIgnoringCase(File.parent_path());
    if (Folder.empty())
        return {};
    const std::string Wanted = FoldedCase(File.filename().string());
    for (const auto& Entry : fs::directory_iterator(Folder, Error))
        if (FoldedCase(Entry.path().filename().string()) == Wanted)
            return Entry.path();
    return {};
}

} // namespace

bool IsPictureFile(const fs::path& File)
{
    using namespace std::string_view_literals;
    std::error_code Error;
    if (!fs::is_regular_file(File, Error))
        return false;
    std::array<char, 4> Start{};
    std::ifstream(File, std::ios::binary).read(Start.data(), Start.size());
    return std::ranges::any_of(
        std::array{"\x89PNG"sv, "GIF8"sv, "\xFF\xD8\xFF"sv, "\0\0\1\0"sv, "BM"sv},
        [&](std::string_view Known) {
            return std::string_view(Start.data(), Start.size()).starts_with(Known);
        });
}

void ImageList::Fill(const fs::path& Folder, const std::string& Stem, int Count, int Size)
{
    TheSize = Size;
    Pictures.clear();
    for (int i = 1; i <= Count; ++i)
        Pictures.push_back({Folder / (Stem + std::to_string(i) + ".png")});
}

const Picture& ImageList::Picture(int Index) const
{
    if (Index < 1 || Index > Count())
        throw Failure(FailureKind::Program, "image " + std::to_string(Index));
    return Pictures[static_cast<std::size_t>(Index - 1)];
}

Picture PictureFiles::Load(const fs::path& File)
{
    const fs::path Found = FindIgnoringCase(File);
    if (!IsPictureFile(Found))
        throw Failure(FailureKind::NoPicture, File.string());
    return {Found};
}

Picture PictureFiles::LoadOr(const fs::path& File, const Picture& Otherwise)
{
    try {
        return {Load(File).File, Otherwise.File};
    } catch (const Failure& Missing) {
        MissingFiles.insert(Missing.Subject());
        return Otherwise;
    }
}

std::vector<std::string> PictureFiles::TakeMissing()
{
    std::vector<std::string> News;
    for (const std::string& File : MissingFiles)
        if (ToldFiles.insert(File).second)
            News.push_back(File);
    MissingFiles.clear();
    return News;
}

} // namespace orvane
