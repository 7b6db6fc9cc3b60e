#include "pictures/quantizer.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvane::pictures {

namespace {

constexpr std::size_t MostColours = 255; // beside the transparent one

int ChannelOf(QRgb Colour, int Channel)
{
    return static_cast<int>(Colour >> 8 * Channel & 0xFF);
}

// Pixels that are to have one colour.
struct Box
{
    std::vector<QRgb> Pixels;
    QRgb Mean = 0xFF000000;
    double Spread = 0; // the box with the largest one is split next
    int Widest = 0;    // channel, and its middle
    double Middle = 0;
};

Box BoxOf(std::vector<QRgb> Pixels)
{
    Box Result{std::move(Pixels)};
    const auto Count = static_cast<double>(Result.Pixels.size());
    for (int Channel = 0; Channel < 3; ++Channel) {
        double Sum = 0, Squares = 0;
        for (const QRgb Pixel : Result.Pixels) {
            const double Value = ChannelOf(Pixel, Channel);
            Sum += Value;
            Squares += Value * Value;
        }
        Result.Mean |= static_cast<QRgb>(std::lround(Sum / Count)) << 8 * Channel;
        if (const double Spread = Squares - Sum * Sum / Count; Spread > Result.Spread) {
            Result.Spread = Spread;
            Result.Widest = Channel;
            Result.Middle = Sum / Count;
        }
    }
    return Result;
}

// The upper half of Whole, which keeps the lower one.
Box SplitOff(Box& Whole)
{
    const auto Upper = std::ranges::partition(
        Whole.Pixels, [&](QRgb Pixel) { return ChannelOf(Pixel, Whole.Widest) <= Whole.Middle; });
    Box Result = BoxOf({Upper.begin(), Upper.end()});
    Whole.Pixels.erase(Upper.begin(), Upper.end());
    Whole = BoxOf(std::move(Whole.Pixels));
    return Result;
}

QList<QRgb> ColoursOf(const QImage& Image)
{
    std::vector<QRgb> Visible;
    for (int y = 0; y < Image.height(); ++y)
        for (int x = 0; x < Image.width(); ++x)
            if (const QRgb Pixel = Image.pixel(x, y); qAlpha(Pixel) != 0)
                Visible.push_back(Pixel);
    std::vector<Box> Boxes{BoxOf(std::move(Visible))};
    while (Boxes.size() < MostColours) {
        const auto Widest = std::ranges::max_element(Boxes, {}, &Box::Spread);
        if (Widest->Spread <= 0)
            break; // a colour for each
        Boxes.push_back(SplitOff(*Widest));
    }
    QList<QRgb> Result{0};
    for (const Box& Each : Boxes)
        Result << Each.Mean;
    return Result;
}

} // namespace

QImage Quantized(const QImage& Image)
{
    return Image.convertToFormat(QImage::Format_Indexed8, ColoursOf(Image));
}

} // namespace orvane::pictures
