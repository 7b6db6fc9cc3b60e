#include "store/file_version.h"

#include <array>
#include <fstream>

namespace orvane {

std::optional<int> FileVersionOf(const std::filesystem::path& File)
{
    constexpr int Place = 60; // four bytes of the header, the highest first
    std::ifstream Stream(File, std::ios::binary);
    std::array<unsigned char, 4> Bytes{};
    Stream.seekg(Place);
    Stream.read(reinterpret_cast<char*>(Bytes.data()), Bytes.size());
    if (!Stream)
        return {};
    return static_cast<int>(static_cast<unsigned>(Bytes[0]) << 24 |
                            static_cast<unsigned>(Bytes[1]) << 16 |
                            static_cast<unsigned>(Bytes[2]) << 8 | static_cast<unsigned>(Bytes[3]));
}

} // namespace orvane
