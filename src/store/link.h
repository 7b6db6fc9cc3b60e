#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace orvane {

inline constexpr std::string_view ConnectPrefix = ";DATABASE=";

// The form in which a linked table keeps its file: the prefix and the full path.
inline std::string ConnectOf(const std::filesystem::path& File)
{
    return std::string(ConnectPrefix) + File.string();
}

// What linked tables keep for this run only, by their folded names, in place of what their file
// says.
using RunLinks = std::map<std::string, std::string>;

} // namespace orvane
