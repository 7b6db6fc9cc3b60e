#include "base/file_stamp.h"

#include <sys/stat.h>

namespace orvane {

namespace {

using Status = struct stat;

std::optional<FileStamp> Asked(int (*Ask)(const char*, Status*), const std::filesystem::path& File)
{
    Status Given = {};
    if (Ask(File.c_str(), &Given) != 0)
        return std::nullopt;
    return FileStamp{Given.st_ino, static_cast<std::uint64_t>(Given.st_size),
                     std::int64_t{Given.st_mtim.tv_sec} * 1'000'000'000 + Given.st_mtim.tv_nsec,
                     S_ISREG(Given.st_mode)   ? FileStamp::Kind::Regular
                     : S_ISLNK(Given.st_mode) ? FileStamp::Kind::Link
                                              : FileStamp::Kind::Other};
}

} // namespace

std::optional<FileStamp> FileStampOf(const std::filesystem::path& File)
{
    return Asked(::stat, File);
}

std::optional<FileStamp> OwnStampOf(const std::filesystem::path& File)
{
    return Asked(::lstat, File);
}

} // namespace orvane
