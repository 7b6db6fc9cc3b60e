#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <sys/types.h>

namespace orvane {

// What tells one state of a file from another, and a file from its replacement.
struct FileStamp
{
    enum class Kind { Regular, Link, Other };

    ino_t File = 0;
    std::uint64_t Size = 0;   // bytes
    std::int64_t Changed = 0; // nanoseconds
    Kind Is = Kind::Other;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

// Nothing for a file that isn't there. Of a link the stamp of what it leads to, or its own.
std::optional<FileStamp> FileStampOf(const std::filesystem::path& File);
std::optional<FileStamp> OwnStampOf(const std::filesystem::path& File);

} // namespace orvane
