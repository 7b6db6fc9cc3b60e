#include "view/contrast.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

double Luminance(const QColor& Colour)
{
    const auto Linear = [](double Part) {
        return Part <= 0.03928 ? Part / 12.92 : std::pow((Part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * Linear(Colour.redF()) + 0.7152 * Linear(Colour.greenF()) +
           0.0722 * Linear(Colour.blueF());
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
