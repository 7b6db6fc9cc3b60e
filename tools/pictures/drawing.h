#pragma once

#include "pictures/manifest.h"
#include "pictures/texture.h"

#include <QImage>

namespace orvane::pictures {

// The drawings of one folder.
class Drawings
{
  public:
    explicit Drawings(const QString& Folder);

    // The picture with its alpha channel. Throws SourceError when the drawing is unsound.
    QImage Render(const Picture& P) const;

  private:
    QString Expanded(const Picture& P) const;
    QImage Plain(const Picture& P) const;
    QImage Written(const Picture& P, QImage Plate) const;

    QString Folder;
    Textures Grains;
};

} // namespace orvane::pictures
