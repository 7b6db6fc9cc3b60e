#pragma once

#include "pictures/table.h"

#include <QSize>

namespace orvane::pictures {

// The words that a drawing may hold between braces, and what replaces them.
struct Palette
{
    QString Name;
    bool IsRoyaume = false;
    QHash<QString, QString> Words;
};

std::vector<Palette> ReadPalettes(const QString& Folder);

// One picture to render. Several with the same .ico output are sizes of one icon.
struct Picture
{
    QString Place; // line of the manifest, for messages
    QString Output;
    QString Source;
    QSize Size;
    Palette Colours;
    bool Ombre = false;  // a drop shadow and a halo
    bool Plaque = false; // on the plate that lies behind objects
};

// The manifest with its short forms ("royaumes", "x2") written out.
std::vector<Picture> ReadManifest(const QString& Folder, const std::vector<Palette>& Palettes);

} // namespace orvane::pictures
