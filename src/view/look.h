#pragma once

#include "toolkit/colour.h"
#include "view/shades.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QRectF>

#include <functional>

class QPainter;
class QPalette;
class QPixmap;

// The one place for type and measures, and for what is painted alike in many places.
namespace orvane::look {

inline constexpr double PanelRadius = 6;
inline constexpr double FieldRadius = 3;
inline constexpr double PlateRadius = 5;
inline constexpr int FieldPadding = 4;
inline constexpr int RowPadding = 5;
inline constexpr int ComboHeight = 23;
inline constexpr int PopupRows = 14;
inline constexpr double DialogPoints = 10;
inline constexpr double MenuPoints = 9;

QPalette Palette();
QFont Font(double Points, bool Bold = false);

// How words that are too long for their place give way: they are narrowed, then made smaller step
// by step, within what can be read. The first of these fonts that fits, else the last.
QFont FittingFont(double Points, QFont::Weight Weight,
                  const std::function<bool(const QFontMetrics&)>& Fits);
QFont FittingFont(double Points, const QString& Text, int Width,
                  QFont::Weight Weight = QFont::Normal);

QColor ColourOf(Colour Given);

// The model's colours as the skin has them: plain black is its ink; white, the ground of what is
// locked, its paper; the grey of what is open to typing, its wells.
QColor InkOf(Colour Given);
QColor GroundOf(Colour Given);

enum class FieldKind {
    Figure, // lies on its ground without an edge
    Input,  // a well to type into
    List,
};

struct FieldState
{
    QColor FieldGround;
    FieldKind Is = FieldKind::List;
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

// Of the arrow of a combo box that is so high.
int ArrowWidth(int High);
void PaintArrow(QPainter& Painter, const QRectF& Box, const QColor& Colour);

} // namespace orvane::look
