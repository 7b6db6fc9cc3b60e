#include "makers/replacement.h"

#include "base/failure.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

namespace orvane {

namespace fs = std::filesystem;

namespace {

bool HaveSameContent(const fs::path& Left, const fs::path& Right)
{
    std::error_code Error;
    if (fs::file_size(Left, Error) != fs::file_size(Right, Error) || Error)
        return false;
    std::ifstream First(Left, std::ios::binary);
    std::ifstream Second(Right, std::ios::binary);
    return std::equal(std::istreambuf_iterator<char>(First), {},
                      std::istreambuf_iterator<char>(Second), {});
}

fs::path Marked(const fs::path& File, const std::string& Mark, int Number)
{
    fs::path Name = File.stem();
    Name += Mark;
    if (Number > 1)
        Name += "." + std::to_string(Number);
    Name += File.extension();
    return File.parent_path() / Name;
}

// Gives the file a second name. Where a file can have only one, a copy made at Aside gets it.
void GiveName(const fs::path& File, const fs::path& Name, const fs::path& Aside)
{
    std::error_code Error;
    fs::create_hard_link(File, Name, Error);
    if (!Error)
        return;
    fs::copy_file(File, Aside);
    fs::rename(Aside, Name);
}

} // namespace

PlaceBeside::PlaceBeside(fs::path Path) : File(std::move(Path)), Folder(File)
{
    Folder += ".import";
    std::error_code Error;
    fs::remove_all(Folder, Error);
    fs::create_directory(Folder, Error);
    if (Error)
        throw Failure(FailureKind::WriteFailed, {}, Error.message());
}

PlaceBeside::~PlaceBeside()
{
    std::error_code Error;
    fs::remove_all(Folder, Error);
}

fs::path PlaceBeside::Successor() const
{
    return Folder / File.filename();
}

void PlaceBeside::Replace(const std::string& Mark) const
{
    int Number = 1;
    fs::path Kept = Marked(File, Mark, Number);
    while (fs::exists(Kept) && !HaveSameContent(File, Kept))
        Kept = Marked(File, Mark, ++Number);
    const bool IsNew = !fs::exists(Kept);
    try {
        if (IsNew)
            GiveName(File, Kept, Folder / "original");
        fs::rename(Successor(), File);
    } catch (const fs::filesystem_error& Error) {
        std::error_code Ignored;
        if (IsNew)
            fs::remove(Kept, Ignored);
        throw Failure(FailureKind::WriteFailed, {}, Error.what());
    }
}

} // namespace orvane
