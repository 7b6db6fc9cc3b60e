#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

// What can be said of a picture file without decoding it: it is one of the formats that the view
// knows, and it isn't cut short.
namespace orvane {

// Whether a regular file of Size bytes begins and ends as a picture does.
bool IsWholePicture(const std::filesystem::path& File, std::uint64_t Size);

// The content of a picture file, to be decoded; empty for what isn't one, a link or a pipe
// included.
std::string PictureContent(const std::filesystem::path& File);

} // namespace orvane
