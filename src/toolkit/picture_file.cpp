#include "toolkit/picture_file.h"

#include "base/file_stamp.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <span>
#include <string_view>

namespace orvane {

namespace {

using namespace std::string_view_literals;

constexpr std::uint64_t HeadSize = 8192; // the whole of most files, read at once
constexpr std::uint64_t TailSize = 128;  // an ending may be followed by a few bytes of other makers
constexpr std::uint64_t GreatestSize = 64 << 20;

struct Format
{
    std::string_view Start;
    std::string_view End;
    std::uint64_t (*LeastSize)(std::string_view Head); // bytes, for a format without an ending
};

// A number of four bytes, the lowest first.
std::uint64_t NumberAt(std::string_view Head, std::size_t At)
{
    std::uint64_t Number = 0;
    for (std::size_t i = 4; i > 0; --i)
        Number = Number * 256 +
                 (At + i <= Head.size() ? static_cast<unsigned char>(Head[At + i - 1]) : 0);
    return Number;
}

std::uint64_t SizeOfBitmap(std::string_view Head)
{
    return NumberAt(Head, 2);
}

// To the end of the icon that lies last; each has an entry with its size and its place.
std::uint64_t SizeOfIcons(std::string_view Head)
{
    const std::uint64_t Count = NumberAt(Head, 4) % 65536;
    std::uint64_t Size = 0;
    for (std::size_t Entry = 6; Entry < 6 + 16 * Count && Entry < Head.size(); Entry += 16)
        Size = std::max(Size, NumberAt(Head, Entry + 8) + NumberAt(Head, Entry + 12));
    return Size;
}

constexpr std::array Formats{
    Format{"\x89PNG"sv, "IEND\xAE\x42\x60\x82"sv, nullptr},
    Format{"\xFF\xD8\xFF"sv, "\xFF\xD9"sv, nullptr},
    Format{"GIF8"sv, "\0;"sv, nullptr},
    Format{"\0\0\1\0"sv, {}, SizeOfIcons},
    Format{"BM"sv, {}, SizeOfBitmap},
};

bool IsWhole(std::string_view Head, std::string_view Tail, std::uint64_t Size)
{
    const auto Found = std::ranges::find_if(
        Formats, [&](const Format& Each) { return Head.starts_with(Each.Start); });
    if (Found == Formats.end())
        return false;
    return Found->LeastSize ? Size >= Found->LeastSize(Head) : Tail.find(Found->End) != Tail.npos;
}

std::string_view TailOf(std::string_view Content)
{
    return Content.substr(Content.size() - std::min<std::size_t>(Content.size(), TailSize));
}

// Opened without a buffer: what is read is asked for at once.
class Bytes
{
  public:
    explicit Bytes(const std::filesystem::path& File)
    {
        Stream.rdbuf()->pubsetbuf(nullptr, 0);
        Stream.open(File, std::ios::binary);
    }

    // Less when the file can't be read so far.
    std::string_view Read(std::span<char> Into, std::uint64_t From = 0)
    {
        if (From > 0)
            Stream.seekg(static_cast<std::streamoff>(From));
        Stream.read(Into.data(), static_cast<std::streamsize>(Into.size()));
        return {Into.data(), static_cast<std::size_t>(Stream.gcount())};
    }

  private:
    std::ifstream Stream;
};

} // namespace

bool IsWholePicture(const std::filesystem::path& File, std::uint64_t Size)
{
    if (Size > GreatestSize)
        return false;
    Bytes Given(File);
    std::array<char, HeadSize> Start; // read into at once
    const auto Head = Given.Read(std::span(Start).first(std::min(Size, HeadSize)));
    if (Size <= HeadSize)
        return IsWhole(Head, TailOf(Head), Size);
    std::array<char, TailSize> End{};
    return IsWhole(Head, Given.Read(End, Size - TailSize), Size);
}

std::string PictureContent(const std::filesystem::path& File)
{
    const auto Stamp = OwnStampOf(File);
    if (!Stamp || Stamp->Is != FileStamp::Kind::Regular || Stamp->Size > GreatestSize)
        return {};
    std::string Content(Stamp->Size, '\0');
    Content.resize(Bytes(File).Read(Content).size());
    return IsWhole(Content, TailOf(Content), Content.size()) ? Content : std::string();
}

} // namespace orvane
