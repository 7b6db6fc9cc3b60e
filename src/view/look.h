#pragma once

#include "toolkit/colour.h"

#include <QColor>
#include <QFont>
#include <QRectF>

class QPainter;
class QPalette;
class QPixmap;

// The one place for colours, type and measures: an inked parchment.
namespace orvane::look {

inline constexpr QColor Ground(0xEF, 0xE6, 0xD3);
inline constexpr QColor GroundTop(0xF4, 0xED, 0xDE);
inline constexpr QColor GroundBottom(0xE8, 0xDC, 0xC3);
inline constexpr QColor GroundEdge(0xC9, 0xB3, 0x86);
inline constexpr QColor Panel(0xF8, 0xF2, 0xE4);
inline constexpr QColor PanelBorder(0xB7, 0x9B, 0x6B);
inline constexpr QColor Ink(0x2B, 0x1D, 0x0E);
inline constexpr QColor MutedInk(0x54, 0x45, 0x33); // 4.5 to 1 on the input ground too
inline constexpr QColor FieldBorder(0xA8, 0x90, 0x5F);
inline constexpr QColor Focus(0x8A, 0x4B, 0x08);
inline constexpr QColor Cream(0xFB, 0xF3, 0xE0);
inline constexpr QColor PlateTop(0x80, 0x52, 0x27);
inline constexpr QColor PlateBottom(0x52, 0x31, 0x11);
inline constexpr QColor PlateBorder(0x38, 0x20, 0x09);
inline constexpr QColor Choice(0x6B, 0x44, 0x16);      // ground of the chosen entry, words in cream
inline constexpr QColor QuietChoice(0xDC, 0xCA, 0xA3); // the same in a list without the focus
inline constexpr QColor Hover(0xEE, 0xE1, 0xC6);
inline constexpr QColor WrongGround(0xFB, 0xE2, 0xDD);
inline constexpr QColor WrongBorder(0xB3, 0x26, 0x1E);

inline constexpr double PanelRadius = 6;
inline constexpr double FieldRadius = 3;
inline constexpr double PlateRadius = 5;
inline constexpr int FieldPadding = 4;
inline constexpr int RowPadding = 5;
inline constexpr int ArrowWidth = 20; // of a combo box
inline constexpr int ComboHeight = 23;
inline constexpr int PopupRows = 14;
inline constexpr double DialogPoints = 10;
inline constexpr double MenuPoints = 9;

QPalette Palette();
QFont Font(double Points, bool Bold = false);

// The font of that size, or as much smaller as the text needs to fit the width, within what can be
// read.
QFont FittingFont(double Points, const QString& Text, int Width,
                  QFont::Weight Weight = QFont::Normal);

// The model's colour; its plain black becomes ink.
QColor InkOf(Colour Given);
QColor ColourOf(Colour Given);

struct FieldState
{
    QColor FieldGround;
    bool Focused = false;
    bool Wrong = false;
    bool HalfTyped = false; // a broken line under a text that stands for no choice
    bool Unkept = false;    // a folded corner: the disk holds another text
};
void PaintField(QPainter& Painter, const QRectF& Box, const FieldState& State);

struct PlateState
{
    bool Hovered = false;
    bool Pressed = false;
    bool Focused = false;
};
void PaintPlate(QPainter& Painter, const QRectF& Box, const PlateState& State);

// A ring that shows on any ground: dark, with a light edge.
void PaintFocusRing(QPainter& Painter, const QRectF& Box, double Radius);

// What is done glows inwards from its edge; Strength from 0 to 1.
void PaintGlow(QPainter& Painter, const QRectF& Box, double Strength);

// A window's own ground, for screens without a background picture.
void PaintGround(QPainter& Painter, const QRectF& Window);

// The ground of panels on a background picture: lighter, as much as captions made for that picture
// can bear.
QColor Veil(const QPixmap& Background);

// A menu bar above a background picture, or above the plain ground: its colour carried on, and
// words that can be read on it.
struct BarColours
{
    QColor BarGround;
    QColor Words;
};
BarColours BarOn(const QPixmap& Background);

// What stands beside the words of a message.
QPixmap Notice(double Density);

void PaintArrow(QPainter& Painter, const QRectF& Box, const QColor& Colour);

} // namespace orvane::look
