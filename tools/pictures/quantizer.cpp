#include "pictures/quantizer.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>

namespace orvane::pictures {

namespace {

constexpr std::size_t MostColours = 255;
constexpr int RefiningPasses = 6;

struct Tint
{
    std::array<int, 3> Channel;
    long long Count;
};

using Tints = std::vector<Tint>;

Tints TintsOf(const QImage& Image)
{
    std::map<QRgb, long long> Counts;
    for (int y = 0; y < Image.height(); ++y)
        for (int x = 0; x < Image.width(); ++x)
            if (const QRgb Pixel = Image.pixel(x, y); qAlpha(Pixel) != 0)
                ++Counts[Pixel & 0xFFFFFFU];
    Tints Result;
    for (const auto& [Colour, Count] : Counts)
        Result.push_back({{qRed(Colour), qGreen(Colour), qBlue(Colour)}, Count});
    return Result;
}

struct Spread
{
    std::size_t Channel = 0;
    double Weight = 0; // the box with the largest one is split next
};

Spread WidestOf(const Tints& Box)
{
    Spread Result;
    for (std::size_t c = 0; c < 3; ++c) {
        double Count = 0, Sum = 0, Squares = 0;
        for (const Tint& T : Box) {
            const double Value = T.Channel[c], N = static_cast<double>(T.Count);
            Count += N;
            Sum += N * Value;
            Squares += N * Value * Value;
        }
        if (const double Weight = Squares - Sum * Sum / Count; Weight > Result.Weight)
            Result = {c, Weight};
    }
    return Result;
}

Tint MeanOf(const Tints& Box)
{
    std::array<long long, 3> Sum{};
    long long Count = 0;
    for (const Tint& T : Box) {
        for (std::size_t c = 0; c < 3; ++c)
            Sum[c] += T.Channel[c] * T.Count;
        Count += T.Count;
    }
    Tint Result{{}, Count};
    for (std::size_t c = 0; c < 3; ++c)
        Result.Channel[c] = static_cast<int>((Sum[c] + Count / 2) / Count);
    return Result;
}

// The upper half of Box, which keeps the lower one.
Tints SplitOff(Tints& Box, std::size_t Channel)
{
    const int Middle = MeanOf(Box).Channel[Channel];
    const auto At = std::stable_partition(
        Box.begin(), Box.end(), [&](const Tint& T) { return T.Channel[Channel] <= Middle; });
    Tints Upper(At, Box.end());
    Box.erase(At, Box.end());
    return Upper;
}

Tints ByMedianCut(const Tints& All)
{
    std::vector<Tints> Boxes{All};
    std::vector<Spread> Spreads{WidestOf(All)};
    while (Boxes.size() < MostColours) {
        const auto Widest = std::ranges::max_element(Spreads, {}, &Spread::Weight);
        if (Widest->Weight <= 0)
            break;
        const auto At = static_cast<std::size_t>(Widest - Spreads.begin());
        Tints Upper = SplitOff(Boxes[At], Widest->Channel);
        if (Upper.empty()) {
            *Widest = {};
            continue;
        }
        Spreads[At] = WidestOf(Boxes[At]);
        Spreads.push_back(WidestOf(Upper));
        Boxes.push_back(std::move(Upper));
    }
    Tints Result;
    for (const Tints& Box : Boxes)
        Result.push_back(MeanOf(Box));
    return Result;
}

std::size_t NearestTo(const std::array<int, 3>& Colour, const Tints& Choice)
{
    std::size_t Best = 0;
    int Least = std::numeric_limits<int>::max();
    for (std::size_t i = 0; i < Choice.size(); ++i) {
        int Distance = 0;
        for (std::size_t c = 0; c < 3; ++c) {
            const int Gap = Choice[i].Channel[c] - Colour[c];
            Distance += Gap * Gap;
        }
        if (Distance < Least) {
            Least = Distance;
            Best = i;
        }
    }
    return Best;
}

void Refine(Tints& Choice, const Tints& All)
{
    std::vector<Tints> Near(Choice.size());
    for (const Tint& T : All)
        Near[NearestTo(T.Channel, Choice)].push_back(T);
    for (std::size_t i = 0; i < Choice.size(); ++i)
        if (!Near[i].empty())
            Choice[i] = MeanOf(Near[i]);
}

} // namespace

IndexedPicture Quantize(const QImage& Image)
{
    const Tints All = TintsOf(Image);
    Tints Choice = All;
    if (All.size() > MostColours) {
        Choice = ByMedianCut(All);
        for (int Pass = 0; Pass < RefiningPasses; ++Pass)
            Refine(Choice, All);
    }

    IndexedPicture Result{Image.size(), {qRgb(0, 0, 0)}, {}};
    for (const Tint& T : Choice)
        Result.Colours.push_back(qRgb(T.Channel[0], T.Channel[1], T.Channel[2]));
    std::map<QRgb, unsigned char> Known;
    for (const Tint& T : All)
        Known[qRgb(T.Channel[0], T.Channel[1], T.Channel[2])] =
            static_cast<unsigned char>(NearestTo(T.Channel, Choice) + 1);
    for (int y = 0; y < Image.height(); ++y)
        for (int x = 0; x < Image.width(); ++x) {
            const QRgb Pixel = Image.pixel(x, y);
            Result.Pixels.push_back(qAlpha(Pixel) == 0 ? 0 : Known.at(Pixel | 0xFF000000U));
        }
    return Result;
}

} // namespace orvane::pictures
