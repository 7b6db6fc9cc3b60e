#include "pictures/effects.h"

#include <QColor>
#include <QPainter>

#include <algorithm>

namespace orvane::pictures {

namespace {

constexpr int LeastAlpha = 128; // below it, a pixel is no part of a picture with hard edges

// The picture's outline, filled with one colour.
QImage Silhouette(const QImage& Image, const QColor& Colour)
{
    QImage Result = Image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter Painter(&Result);
    Painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    Painter.fillRect(Result.rect(), Colour);
    return Result;
}

} // namespace

QImage WithShadow(const QImage& Image)
{
    const int Unit = std::max(1, Image.width() / 44);
    QImage Result(Image.size(), QImage::Format_ARGB32_Premultiplied);
    Result.fill(Qt::transparent);
    QPainter Painter(&Result);
    Painter.drawImage(Unit, Unit + Unit / 2, Silhouette(Image, QColor(0x2A, 0x17, 0x08)));
    Painter.drawImage(0, 0, Image);
    return Result;
}

QImage WithHardEdges(const QImage& Image)
{
    QImage Result = Image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < Result.height(); ++y)
        for (int x = 0; x < Result.width(); ++x) {
            const QRgb Pixel = Result.pixel(x, y);
            Result.setPixel(x, y, qAlpha(Pixel) < LeastAlpha ? 0 : Pixel | 0xFF000000);
        }
    return Result;
}

} // namespace orvane::pictures
