#include "view/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvane {

namespace {

// What each of the 256 steps of a colour's part sheds of light; worked out once, for many colours
// are compared before a window is seen.
const std::array<double, 256>& Light()
{
    static const auto Steps = [] {
        std::array<double, 256> Result;
        for (std::size_t i = 0; i < Result.size(); ++i) {
            const double Part = double(i) / 255;
            Result[i] = Part <= 0.03928 ? Part / 12.92 : std::pow((Part + 0.055) / 1.055, 2.4);
        }
        return Result;
    }();
    return Steps;
}

double Luminance(const QColor& Colour)
{
    const QRgb Parts = Colour.rgb();
    return 0.2126 * Light()[static_cast<std::size_t>(qRed(Parts))] +
           0.7152 * Light()[static_cast<std::size_t>(qGreen(Parts))] +
           0.0722 * Light()[static_cast<std::size_t>(qBlue(Parts))];
}

constexpr double Margin = 1.15; // thin strokes are painted paler than their ink

double WorstContrast(const QColor& Ink, std::span<const QColor> Grounds)
{
    double Worst = 21;
    for (const QColor& Each : Grounds)
        Worst = std::min(Worst, Contrast(Ink, Each));
    return Worst;
}

} // namespace

QColor Mixed(const QColor& From, const QColor& To, double Share)
{
    const auto Part = [&](float One, float Other) {
        return static_cast<float>(One + (Other - One) * Share);
    };
    return QColor::fromRgbF(Part(From.redF(), To.redF()), Part(From.greenF(), To.greenF()),
                            Part(From.blueF(), To.blueF()));
}

double Contrast(const QColor& One, const QColor& Other)
{
    const auto [Dark, Light] = std::minmax({Luminance(One), Luminance(Other)});
    return (Light + 0.05) / (Dark + 0.05);
}

QColor Readable(const QColor& Ink, std::span<const QColor> Grounds)
{
    constexpr int Steps = 20;
    QColor Best = Ink;
    for (int Step = 0; Step <= Steps; ++Step)
        for (const QColor& End : {QColor(Qt::white), QColor(Qt::black)}) {
            const QColor Tried = Mixed(Ink, End, double(Step) / Steps);
            if (WorstContrast(Tried, Grounds) >= LeastContrast * Margin)
                return Tried;
            if (WorstContrast(Tried, Grounds) > WorstContrast(Best, Grounds))
                Best = Tried;
        }
    return Best;
}

} // namespace orvane
