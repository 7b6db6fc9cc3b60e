#pragma once

#include <QImage>

namespace orvane::pictures {

// The same picture with a table of at most 256 colours (Format_Indexed8). Pixels of alpha 0 become
// entry 0; all others must be opaque.
QImage Quantized(const QImage& Image);

} // namespace orvane::pictures
