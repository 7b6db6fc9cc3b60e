#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <sys/types.h>

namespace orvane {

// What tells one state of a file from another, and a file from its replacement.
struct FileStamp
{
    ino_t File = 0;
    off_t Size = 0;
    std::int64_t Changed = 0; // nanoseconds

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

// Nothing for a file that isn't there.
std::optional<FileStamp> FileStampOf(const std::filesystem::path& File);

} // namespace orvane
