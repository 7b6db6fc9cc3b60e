#pragma once

#include <QByteArray>
#include <QImage>

#include <vector>

namespace orvane::pictures {

// The picture must already be on its ground: alpha 0 is transparent, anything else opaque.
QByteArray GifBytes(const QImage& Image);

// A container with one PNG for each size.
QByteArray IconBytes(std::vector<QImage> Sizes);

// Any format of Qt's own writers, such as "PNG" and "JPEG".
QByteArray QtBytes(const QImage& Image, const char* Format);

} // namespace orvane::pictures
