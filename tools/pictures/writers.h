#pragma once

#include <QByteArray>
#include <QImage>

#include <vector>

namespace orvane::pictures {

// Each pixel is there or isn't, in its own colour, so that edges stand on light and dark grounds
// alike.
QByteArray GifBytes(const QImage& Image);

// A container with one PNG for each size.
QByteArray IconBytes(std::vector<QImage> Sizes);

QByteArray PngBytes(const QImage& Image);
QByteArray JpegBytes(const QImage& Image, int Quality);

} // namespace orvane::pictures
