#include "pictures/effects.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <vector>

namespace orvane::pictures {

namespace {

constexpr QRgb Parchment = 0xFFEFE6D3;
constexpr int FaintestAlpha = 10; // below it, a pixel is no part of the picture

struct Plane
{
    int Width;
    int Height;
    std::vector<int> Values;

    int At(int x, int y) const
    {
        if (x < 0 || y < 0 || x >= Width || y >= Height)
            return 0;
        return Values[static_cast<std::size_t>(y * Width + x)];
    }
};

template <typename Function>
Plane MakePlane(int Width, int Height, Function Value)
{
    Plane Result{Width, Height, {}};
    Result.Values.reserve(static_cast<std::size_t>(Width * Height));
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x)
            Result.Values.push_back(Value(x, y));
    return Result;
}

Plane AlphaOf(const QImage& Image)
{
    return MakePlane(Image.width(), Image.height(),
                     [&](int x, int y) { return qAlpha(Image.pixel(x, y)); });
}

Plane Mean(const Plane& Source, int Radius, int StepX, int StepY)
{
    return MakePlane(Source.Width, Source.Height, [&](int x, int y) {
        int Sum = 0;
        for (int i = -Radius; i <= Radius; ++i)
            Sum += Source.At(x + i * StepX, y + i * StepY);
        return Sum / (2 * Radius + 1);
    });
}

// Three passes of a mean come close to a Gaussian blur.
Plane Blurred(Plane Source, int Radius)
{
    for (int Pass = 0; Pass < 3; ++Pass)
        Source = Mean(Mean(Source, Radius, 1, 0), Radius, 0, 1);
    return Source;
}

QImage Stain(const Plane& Alpha, const QColor& Colour, double Strength)
{
    QImage Result(Alpha.Width, Alpha.Height, QImage::Format_ARGB32);
    for (int y = 0; y < Alpha.Height; ++y)
        for (int x = 0; x < Alpha.Width; ++x) {
            QColor Pixel = Colour;
            Pixel.setAlpha(std::min(255, static_cast<int>(Alpha.At(x, y) * Strength)));
            Result.setPixelColor(x, y, Pixel);
        }
    return Result;
}

} // namespace

QImage WithShadowAndHalo(const QImage& Image)
{
    const int Unit = std::max(1, Image.width() / 44);
    const Plane Alpha = AlphaOf(Image);
    QImage Result(Image.size(), QImage::Format_ARGB32_Premultiplied);
    Result.fill(Qt::transparent);
    QPainter Painter(&Result);
    Painter.drawImage(0, 0, Stain(Blurred(Alpha, Unit), QColor(0xFF, 0xC4, 0x3A), 1.5));
    Painter.drawImage(Unit, Unit + Unit / 2,
                      Stain(Blurred(Alpha, Unit), QColor(0x2A, 0x17, 0x08), 0.75));
    Painter.drawImage(0, 0, Image);
    return Result;
}

QImage OnParchment(const QImage& Image)
{
    QImage Result(Image.size(), QImage::Format_ARGB32);
    Result.fill(Parchment);
    QPainter Painter(&Result);
    Painter.drawImage(0, 0, Image);
    Painter.end();
    for (int y = 0; y < Image.height(); ++y)
        for (int x = 0; x < Image.width(); ++x)
            if (qAlpha(Image.pixel(x, y)) < FaintestAlpha)
                Result.setPixel(x, y, Parchment & RGB_MASK);
    return Result;
}

} // namespace orvane::pictures
