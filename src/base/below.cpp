#include "base/below.h"

#include <algorithm>

namespace orvane {

namespace fs = std::filesystem;

namespace {

bool BeginsWith(const fs::path& File, const fs::path& Folder)
{
    return std::ranges::mismatch(File, Folder).in2 == Folder.end();
}

} // namespace

bool StaysBelow(const fs::path& Folder, const fs::path& File)
{
    auto [Part, Rest] = std::ranges::mismatch(File, Folder);
    if (Rest != Folder.end() || std::ranges::find(Part, File.end(), "..") != File.end())
        return false;
    if (Part == File.end())
        return true;
    std::error_code Error;
    const fs::path Entry = Folder / *Part;
    fs::path Walked = Entry;
    while (++Part != File.end()) {
        Walked /= *Part;
        if (fs::is_symlink(fs::symlink_status(Walked, Error)))
            return BeginsWith(fs::weakly_canonical(File, Error),
                              fs::weakly_canonical(Entry, Error));
    }
    return true;
}

} // namespace orvane
