#pragma once

#include <QImage>

namespace orvane::pictures {

// The same picture with a dark shadow towards the bottom right, for which the drawing leaves room.
QImage WithShadow(const QImage& Image);

// The picture for formats with one-bit transparency: each pixel is there or isn't, in its own
// colour, so that edges stand on light and dark grounds alike.
QImage WithHardEdges(const QImage& Image);

} // namespace orvane::pictures
