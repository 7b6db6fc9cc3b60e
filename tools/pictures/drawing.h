#pragma once

#include "pictures/manifest.h"

#include <QImage>

namespace orvane::pictures {

// The drawing's text with its palette words and inclusions replaced. "{inclure:x.svg}" stands for
// the inside of the <svg> element of x.svg; a file comes in once, at its first mention.
QByteArray ExpandDrawing(const QString& Folder, const Picture& P);

// The picture with its alpha channel. Throws SourceError when the drawing is unsound.
QImage RenderDrawing(const QString& Folder, const Picture& P);

} // namespace orvane::pictures
