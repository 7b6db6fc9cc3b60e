#pragma once

#include <filesystem>
#include <optional>

namespace orvane {

// What a file made by this program bears as its user_version. A file with a higher one comes from a
// later program: it is read, and never written to.
inline constexpr int FileVersion = 1;

// Of a database file, from its header alone; none when there is no whole header to read.
std::optional<int> FileVersionOf(const std::filesystem::path& File);

} // namespace orvane
