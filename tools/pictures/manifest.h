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

// What is written on a plate, with a glyph at the left.
struct Lettering
{
    QString Words;   // none: nothing is written
    QString Family;  // of the font, in bold
    QString Glyph;   // its drawing; none: the words alone
    double Size = 0; // of the font, in units of the plate's drawing
};

// One picture to render. Several with the same .ico output are sizes of one icon.
struct Picture
{
    QString Place; // line of the manifest, for messages
    QString Output;
    QString Source;
    QSize Size;
    Palette Colours;
    bool Plaque = false; // on the plate that lies behind objects
    int Quality = 92;    // of a JPEG, out of 100
    Lettering Written = {};
};

QString ForPalette(QString Text, const Palette& Colours);
// The same picture at double size, for dense screens: "name@2x.ext".
Picture AtTwice(Picture P);

inline constexpr int LargestSide = 2048;
int SideOf(const TableRow& Row, const QString& Column);
void RefuseOutsidePath(const TableRow& Row, const QString& Path);
void RefuseTwice(const std::vector<Picture>& Pictures);

// The manifest with its short forms ("royaumes", "x2") written out.
std::vector<Picture> ReadManifest(const QString& Folder, const std::vector<Palette>& Palettes);

} // namespace orvane::pictures
