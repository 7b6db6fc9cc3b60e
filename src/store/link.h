#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvane {

inline constexpr std::string_view ConnectPrefix = ";DATABASE=";

// The form in which a linked table keeps its file: the prefix and the full path.
inline std::string ConnectOf(const std::filesystem::path& File)
{
    return std::string(ConnectPrefix) + File.string();
}

} // namespace orvane
