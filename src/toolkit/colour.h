#pragma once

#include <cstdint>

namespace orvane {

// A colour as the data files number it: red in the low byte, then green, then blue.
struct Colour
{
    std::int32_t Number = 0;

    constexpr int Red() const { return Number & 0xFF; }
    constexpr int Green() const { return (Number >> 8) & 0xFF; }
    constexpr int Blue() const { return (Number >> 16) & 0xFF; }

    friend constexpr bool operator==(Colour, Colour) = default;
};

constexpr Colour RGB(int Red, int Green, int Blue)
{
    return {Red | Green << 8 | Blue << 16};
}

inline constexpr Colour Black = RGB(0, 0, 0);
inline constexpr Colour White = RGB(255, 255, 255);
inline constexpr Colour InputGrey = RGB(192, 192, 192); // ground of a box that is open to typing

} // namespace orvane
