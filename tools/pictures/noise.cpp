#include "pictures/noise.h"

#include <algorithm>
#include <cmath>

namespace orvane::pictures {

namespace {

// A number from 0 to 1 that depends on nothing but the lattice point and the seed.
double Random(int x, int y, std::uint32_t Seed)
{
    std::uint32_t Bits = static_cast<std::uint32_t>(x) * 0x8DA6B343U ^
                         static_cast<std::uint32_t>(y) * 0xD8163841U ^ Seed * 0xCB1AB31FU;
    Bits = (Bits ^ Bits >> 15) * 0x2C1B3C6DU;
    Bits = (Bits ^ Bits >> 12) * 0x297A2D39U;
    Bits ^= Bits >> 15;
    return Bits / 4294967295.0;
}

double Smooth(double t)
{
    return t * t * t * (t * (t * 6 - 15) + 10);
}

double Between(double a, double b, double t)
{
    return a + (b - a) * t;
}

double CloudAt(double x, double y, std::uint32_t Seed)
{
    const int Column = static_cast<int>(std::floor(x)), Line = static_cast<int>(std::floor(y));
    const double Across = Smooth(x - Column), Down = Smooth(y - Line);
    const double Above =
        Between(Random(Column, Line, Seed), Random(Column + 1, Line, Seed), Across);
    const double Below =
        Between(Random(Column, Line + 1, Seed), Random(Column + 1, Line + 1, Seed), Across);
    return Between(Above, Below, Down) * 2 - 1;
}

struct Dent
{
    double FromX = 0; // of the point, from the dent's middle
    double FromY = 0;
    double Depth = 0;
    double Distance = 9; // squared
};

// The two dents nearest to the point: it lies in the first, and near their edge if the second is
// about as near.
double DentAt(double x, double y, std::uint32_t Seed)
{
    const int Column = static_cast<int>(std::floor(x)), Line = static_cast<int>(std::floor(y));
    Dent First, Second;
    for (int j = Line - 1; j <= Line + 1; ++j)
        for (int i = Column - 1; i <= Column + 1; ++i) {
            Dent Each;
            Each.FromX = x - i - Random(i, j, Seed);
            Each.FromY = y - j - Random(i, j, Seed + 1);
            Each.Depth = Between(0.4, 1, Random(i, j, Seed + 2));
            Each.Distance = Each.FromX * Each.FromX + Each.FromY * Each.FromY;
            if (Each.Distance < First.Distance) {
                Second = First;
                First = Each;
            } else if (Each.Distance < Second.Distance) {
                Second = Each;
            }
        }
    const double Edge = std::sqrt(Second.Distance) - std::sqrt(First.Distance);
    const double Lit = (First.FromX + First.FromY) * First.Depth; // the far side faces the light
    return Lit * Smooth(std::min(1.0, Edge * 4));
}

} // namespace

double GrainAt(const Grain& Which, double x, double y)
{
    double Sum = 0, Weight = 1, Total = 0, Size = Which.Size;
    for (int i = 0; i < Which.Octaves; ++i) {
        const std::uint32_t Seed = Which.Seed + 16 * static_cast<std::uint32_t>(i);
        const double Across = x / (Size * Which.Stretch), Down = y / Size;
        Sum += Weight * (Which.Hammered ? DentAt(Across, Down, Seed) : CloudAt(Across, Down, Seed));
        Total += Weight;
        Weight /= 2;
        Size /= 2;
    }
    return std::clamp(Sum / Total * 1.4, -1.0, 1.0);
}

} // namespace orvane::pictures
