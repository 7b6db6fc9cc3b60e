#include "toolkit/picture.h"

#include "base/below.h"
#include "base/failure.h"
#include "base/text.h"
#include "toolkit/picture_file.h"

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

void ImageList::Fill(PictureFiles& Files, const fs::path& Folder, const std::string& Stem,
                     int Count, int Size)
{
    TheSize = Size;
    Pictures.clear();
    for (int i = 1; i <= Count; ++i)
        Pictures.push_back(Files.LoadOr(Folder / (Stem + std::to_string(i) + ".png")));
}

const Picture& ImageList::Picture(int Index) const
{
    if (Index < 1 || Index > Count())
        throw Failure(FailureKind::Program, "image " + std::to_string(Index));
    return Pictures[static_cast<std::size_t>(Index - 1)];
}

Picture PictureFiles::LoadOr(const fs::path& File, const Picture& Otherwise)
{
    Picture Found{{}, Otherwise.File, {}};
    const auto Wrong = Fault(File, Found);
    if (!Wrong)
        return Found;
    Missing.insert(File.lexically_relative(Folder).string().append(*Wrong));
    return Otherwise;
}

std::vector<std::string> PictureFiles::TakeMissing()
{
    std::vector<std::string> News;
    for (const std::string& File : Missing)
        if (Told.insert(File).second)
            News.push_back(File);
    Missing.clear();
    return News;
}

std::optional<std::string_view> PictureFiles::Fault(const fs::path& File, Picture& Found)
{
    constexpr std::string_view IsMissing;
    constexpr std::string_view IsUnreadable = " (illisible)";
    constexpr std::string_view IsOutside = " (hors de son dossier)";
    if (!IsInside(File))
        return IsOutside;
    Found.File = File;
    auto Stamp = OwnStampOf(File);
    if (!Stamp) {
        Found.File = FindIgnoringCase(File);
        if (Found.File.empty())
            return IsMissing;
        Stamp = OwnStampOf(Found.File);
        if (!IsInside(Found.File))
            return IsOutside;
    }
    if (Stamp && Stamp->Is == FileStamp::Kind::Link) {
        if (!StaysBelow(Folder, Found.File))
            return IsOutside;
        std::error_code Error;
        Found.File = fs::canonical(Found.File, Error);
        Stamp = OwnStampOf(Found.File);
    }
    if (!Stamp)
        return IsMissing;
    if (Stamp->Is != FileStamp::Kind::Regular || !IsWholePicture(Found.File, Stamp->Size))
        return IsUnreadable;
    Found.Stamp = *Stamp;
    return std::nullopt;
}

bool PictureFiles::IsInside(const fs::path& File)
{
    const fs::path Parent = File.parent_path();
    if (Parent == LastInside)
        return true;
    const bool Stays = StaysBelow(Folder, Parent);
    if (Stays)
        LastInside = Parent;
    return Stays;
}

} // namespace orvane
