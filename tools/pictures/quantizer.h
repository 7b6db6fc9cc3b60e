#pragma once

#include <QImage>

#include <vector>

namespace orvane::pictures {

// A picture of at most 256 colours. Entry 0 of Colours stands for transparency.
struct IndexedPicture
{
    QSize Size;
    std::vector<QRgb> Colours;
    std::vector<unsigned char> Pixels;
};

// Pixels of alpha 0 become entry 0; the alpha of the others is ignored.
IndexedPicture Quantize(const QImage& Image);

} // namespace orvane::pictures
