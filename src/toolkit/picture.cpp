#include "toolkit/picture.h"

#include "base/failure.h"
#include "base/text.h"

#include <unistd.h>

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
    std::error_code Error;
    if (Found.empty() || !fs::is_regular_file(Found, Error) || ::access(Found.c_str(), R_OK) != 0)
        throw Failure(FailureKind::NoPicture, File.string());
    return {Found};
}

Picture PictureFiles::LoadOr(const fs::path& File, const Picture& Otherwise)
{
    try {
        return Load(File);
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
