#pragma once

#include "pictures/manifest.h"

#include <QImage>

namespace orvane::pictures {

// In pixels, to go with the words of P.
QSize GlyphSize(const Picture& P);

// Draws the words of P, on one or two lines, and the glyph at their left in the middle of the
// plate. Throws SourceError when the font is missing or the words don't fit.
void WriteOn(QImage& Plate, const QImage& Glyph, const Picture& P);

} // namespace orvane::pictures
