#pragma once

#include <QImage>

namespace orvane::pictures {

// The same picture with a golden halo around it and a soft shadow towards the bottom right. The
// drawing leaves room for them: about a tenth of its width.
QImage WithShadowAndHalo(const QImage& Image);

// The picture on the parchment of the windows, for formats with one-bit transparency: smooth edges
// there, and transparent where nothing is drawn.
QImage OnParchment(const QImage& Image);

} // namespace orvane::pictures
