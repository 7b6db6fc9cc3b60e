#include "store/file_stamp.h"

#include <sys/stat.h>

namespace orvane {

std::optional<FileStamp> FileStampOf(const std::filesystem::path& File)
{
    struct stat Status = {};
    if (::stat(File.c_str(), &Status) != 0)
        return std::nullopt;
    return FileStamp{Status.st_ino, Status.st_size,
                     std::int64_t{Status.st_mtim.tv_sec} * 1'000'000'000 + Status.st_mtim.tv_nsec};
}

} // namespace orvane
