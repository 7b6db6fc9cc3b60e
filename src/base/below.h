#pragma once

#include <filesystem>

namespace orvane {

// Whether a path that came with data stays in Folder: it begins with it and climbs nowhere, and
// no link on its way leads out of the entry of Folder that it passes. That entry may itself be a
// link: whoever laid out the folder put it there. Whether the file exists is another matter.
bool StaysBelow(const std::filesystem::path& Folder, const std::filesystem::path& File);

} // namespace orvane
