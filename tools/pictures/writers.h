#pragma once

#include <QByteArray>
#include <QImage>

#include <vector>

namespace orvane::pictures {

// The picture must already be on its ground: alpha 0 is transparent, anything else opaque.
QByteArray GifBytes(const QImage& Image);

// A container with one PNG for each size.
QByteArray IconBytes(std::vector<QImage> Sizes);

QByteArray PngBytes(const QImage& Image);
QByteArray JpegBytes(const QImage& Image, int Quality);

} // namespace orvane::pictures
