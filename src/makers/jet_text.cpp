#include "makers/jet_text.h"

#include "makers/damage.h"

#include <unicode/ustring.h>

namespace orvane {

namespace {

constexpr std::string_view CompressedMark = "\xFF\xFE";

char16_t Unit(char Low, char High)
{
    return static_cast<char16_t>(static_cast<unsigned char>(Low) | static_cast<unsigned char>(High)
                                                                       << 8);
}

std::u16string Pairs(std::string_view Bytes)
{
    if (Bytes.size() % 2 != 0)
        ThrowDamaged("half a character");
    std::u16string Units;
    for (std::size_t i = 0; i < Bytes.size(); i += 2)
        Units += Unit(Bytes[i], Bytes[i + 1]);
    return Units;
}

// One byte for each character below U+0100; a zero byte begins and ends stretches of whole pairs.
std::u16string Uncompressed(std::string_view Bytes)
{
    std::u16string Units;
    bool IsWhole = false;
    for (std::size_t i = 0; i < Bytes.size(); ++i) {
        if (Bytes[i] == 0) {
            IsWhole = !IsWhole;
            continue;
        }
        if (IsWhole && i + 1 == Bytes.size())
            ThrowDamaged("half a character");
        Units += Unit(Bytes[i], IsWhole ? Bytes[i + 1] : '\0');
        i += IsWhole ? 1 : 0;
    }
    return Units;
}

} // namespace

std::string TextOfJet4(std::string_view Bytes)
{
    const std::u16string Units = Bytes.starts_with(CompressedMark)
                                     ? Uncompressed(Bytes.substr(CompressedMark.size()))
                                     : Pairs(Bytes);
    std::string Result(Units.size() * 3, '\0'); // no unit takes more
    int32_t Length = 0;
    UErrorCode Status = U_ZERO_ERROR;
    u_strToUTF8(Result.data(), static_cast<int32_t>(Result.size()), &Length, Units.data(),
                static_cast<int32_t>(Units.size()), &Status);
    if (U_FAILURE(Status))
        ThrowDamaged("half a character of two units");
    Result.resize(static_cast<std::size_t>(Length));
    return Result;
}

} // namespace orvane
