#pragma once

#include <cstdint>

namespace orvane::pictures {

// What a texture looks like; lengths in units of the drawing.
struct Grain
{
    bool Hammered = false; // dents lit from the top left, else clouds
    double Size = 1;       // of the largest cloud or of a dent
    int Octaves = 1;       // each half as large and half as strong as the one before
    double Stretch = 1;    // how many times wider than high
    std::uint32_t Seed = 0;
};

// From -1 (dark) to 1 (light).
double GrainAt(const Grain& Which, double x, double y);

} // namespace orvane::pictures
