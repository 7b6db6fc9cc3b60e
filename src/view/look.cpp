#include "view/look.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QRandomGenerator>

#include <algorithm>

namespace orvane::look {

namespace {

// Widths of the screens are made for it, and every machine has it.
const QString& Family()
{
    static const QString Name = QStringLiteral("DejaVu Sans");
    return Name;
}

// A faint grain, the same at each run.
const QPixmap& Grain()
{
    static const QPixmap Tile = [] {
        QImage Result(96, 96, QImage::Format_ARGB32_Premultiplied);
        QRandomGenerator Random(7);
        for (int y = 0; y < Result.height(); ++y) {
            auto* Pixel = reinterpret_cast<QRgb*>(Result.scanLine(y));
            for (int x = 0; x < Result.width(); ++x)
                Pixel[x] = qPremultiply(qRgba(90, 60, 20, Random.bounded(9)));
        }
        return QPixmap::fromImage(Result);
    }();
    return Tile;
}

constexpr int Dark = 110; // of 255: below, words are light

constexpr QColor LightInk(0xFB, 0xF3, 0xE0); // on pictures of any skin
constexpr QColor DarkInk(0x2B, 0x1D, 0x0E);

QRectF Inside(const QRectF& Box, double By)
{
    return Box.adjusted(By, By, -By, -By);
}

} // namespace

QPalette Palette()
{
    QPalette Result(Now().Ground);
    Result.setColor(QPalette::Window, Now().Ground);
    Result.setColor(QPalette::WindowText, Now().Ink);
    Result.setColor(QPalette::Base, Now().Paper);
    Result.setColor(QPalette::AlternateBase, Now().Panel);
    Result.setColor(QPalette::Text, Now().Ink);
    Result.setColor(QPalette::Button, Now().GroundBottom);
    Result.setColor(QPalette::ButtonText, Now().Ink);
    Result.setColor(QPalette::Highlight, Now().Choice);
    Result.setColor(QPalette::HighlightedText, Now().ChoiceInk);
    Result.setColor(QPalette::ToolTipBase, Now().Tip);
    Result.setColor(QPalette::ToolTipText, Now().Ink);
    Result.setColor(QPalette::PlaceholderText, Now().MutedInk);
    Result.setColor(QPalette::Link, Now().Focus);
    return Result;
}

QFont Font(double Points, bool Bold)
{
    QFont Result(Family());
    Result.setPointSizeF(Points > 0 ? Points : DialogPoints);
    Result.setBold(Bold);
    return Result;
}

QFont FittingFont(double Points, QFont::Weight Weight,
                  const std::function<bool(const QFontMetrics&)>& Fits)
{
    constexpr int Steps = 6;
    constexpr double Step = 0.06; // of the size
    constexpr int Narrow = 88;    // percent
    QFont Result = Font(Points);
    Result.setWeight(Weight);
    for (int Tried = 0; Tried <= Steps && !Fits(QFontMetrics(Result)); ++Tried) {
        Result.setPointSizeF(Points * (1 - Tried * Step));
        Result.setStretch(Narrow);
    }
    return Result;
}

QFont FittingFont(double Points, const QString& Text, int Width, QFont::Weight Weight)
{
    return FittingFont(Points, Weight, [&](const QFontMetrics& Tried) {
        return Tried.horizontalAdvance(Text) <= Width;
    });
}

QColor ColourOf(Colour Given)
{
    return {Given.Red(), Given.Green(), Given.Blue()};
}

QColor GroundOf(Colour Given)
{
    return Given == White ? Now().Paper : Given == InputGrey ? Now().Well : ColourOf(Given);
}

QColor InkOf(Colour Given)
{
    return Given == Black ? Now().Ink : ColourOf(Given);
}

void PaintField(QPainter& Painter, const QRectF& Box, const FieldState& State)
{
    Painter.save();
    Painter.setRenderHint(QPainter::Antialiasing);
    const bool HasEdge = State.Is != FieldKind::Figure || State.Wrong || State.Focused;
    const double Pen = !HasEdge ? 0 : !State.Focused ? 1 : State.Is == FieldKind::Input ? 3 : 2;
    const QColor Border = State.Wrong                    ? Now().WrongBorder
                          : State.Focused                ? Now().Focus
                          : State.Is == FieldKind::Input ? Now().WellBorder
                                                         : Now().FieldBorder;
    Painter.setPen(HasEdge ? QPen(Border, Pen) : QPen(Qt::NoPen));
    Painter.setBrush(State.Wrong ? Now().WrongGround : State.FieldGround);
    Painter.drawRoundedRect(Inside(Box, Pen / 2), FieldRadius, FieldRadius);
    if (State.Is == FieldKind::Input && !State.Focused) { // sunken: its upper edge throws a shadow
        Painter.setPen(QPen(QColor(0, 0, 0, 60), 1));
        Painter.drawLine(Box.topLeft() + QPointF(FieldRadius, Pen + 0.5),
                         Box.topRight() + QPointF(-FieldRadius, Pen + 0.5));
    }
    if (State.HalfTyped) {
        Painter.setPen(QPen(Now().MutedInk, 1, Qt::DashLine));
        const double Line = Box.bottom() - FieldPadding + 0.5;
        Painter.drawLine(QPointF(Box.left() + FieldPadding, Line),
                         QPointF(Box.right() - FieldPadding, Line));
    }
    if (State.Unkept) {
        constexpr double Fold = 8;
        Painter.setPen(Qt::NoPen);
        Painter.setBrush(Now().Focus);
        const QPointF Corner = Box.topRight() + QPointF(-1, 1);
        Painter.drawPolygon(
            QPolygonF{Corner, Corner - QPointF(Fold, 0), Corner + QPointF(0, Fold)});
    }
    Painter.restore();
}

void PaintPlate(QPainter& Painter, const QRectF& Box, const PlateState& State)
{
    Painter.save();
    Painter.setRenderHint(QPainter::Antialiasing);
    const QRectF Plate = Inside(Box, 0.5);
    const int Lighter = State.Pressed ? 88 : State.Hovered ? 112 : 100;
    QLinearGradient Fill(Plate.topLeft(), Plate.bottomLeft());
    Fill.setColorAt(State.Pressed ? 1 : 0, Now().PlateTop.lighter(Lighter));
    Fill.setColorAt(State.Pressed ? 0 : 1, Now().PlateBottom.lighter(Lighter));
    Painter.setPen(QPen(Now().PlateBorder, 1));
    Painter.setBrush(Fill);
    Painter.drawRoundedRect(Plate, PlateRadius, PlateRadius);
    Painter.setBrush(Qt::NoBrush);
    if (!State.Pressed) {
        Painter.setPen(QPen(QColor(255, 236, 200, 70), 1));
        Painter.drawRoundedRect(Inside(Plate, 1), PlateRadius - 1, PlateRadius - 1);
    }
    if (State.Focused) {
        Painter.setPen(QPen(Now().PlateInk, 1.5));
        Painter.drawRoundedRect(Inside(Plate, 3), PlateRadius - 2, PlateRadius - 2);
    }
    Painter.restore();
}

void PaintFocusRing(QPainter& Painter, const QRectF& Box, double Radius)
{
    Painter.save();
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setBrush(Qt::NoBrush);
    Painter.setPen(QPen(Now().FocusHalo, 4));
    Painter.drawRoundedRect(Inside(Box, 2), Radius, Radius);
    Painter.setPen(QPen(Now().Focus, 2));
    Painter.drawRoundedRect(Inside(Box, 1), Radius, Radius);
    Painter.restore();
}

void PaintGlow(QPainter& Painter, const QRectF& Box, double Strength)
{
    constexpr int Depth = 8;
    Painter.save();
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setBrush(Qt::NoBrush);
    for (int Inset = 0; Inset < Depth; ++Inset) {
        Painter.setPen(
            QPen(QColor(255, 226, 120, static_cast<int>(230 * Strength * (Depth - Inset) / Depth)),
                 1.5));
        const double At = Inset + 0.75;
        Painter.drawRoundedRect(Box.adjusted(At, At, -At, -At), PlateRadius, PlateRadius);
    }
    Painter.restore();
}

void PaintGround(QPainter& Painter, const QRectF& Window)
{
    QLinearGradient Fill(Window.topLeft(), Window.bottomLeft());
    Fill.setColorAt(0, Now().GroundTop);
    Fill.setColorAt(1, Now().GroundBottom);
    Painter.fillRect(Window, Fill);
    Painter.drawTiledPixmap(Window, Grain());
    Painter.setPen(QPen(Now().GroundEdge, 1));
    Painter.drawRect(Inside(Window, 4.5));
}

QColor Veil(const QPixmap& Background)
{
    const QImage Average =
        Background.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).toImage();
    const bool IsDark = qGray(Average.pixel(0, 0)) < Dark;
    return IsDark ? QColor(255, 255, 255, 20) : QColor(255, 252, 244, 120);
}

BarColours BarOn(const QPixmap& Background)
{
    constexpr int Strip = 24; // of the picture, below the bar
    if (Background.isNull())
        return {Now().GroundTop, Now().Ink};
    const QImage Average = Background.copy(0, 0, Background.width(), Strip)
                               .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                               .toImage();
    const QColor There = Average.pixelColor(0, 0).toRgb();
    return qGray(There.rgb()) < Dark ? BarColours{There.darker(125), LightInk}
                                     : BarColours{There.lighter(104), DarkInk};
}

QPixmap Notice(double Density)
{
    constexpr double Side = 40;
    QPixmap Result(QSizeF(Side, Side).toSize() * Density);
    Result.setDevicePixelRatio(Density);
    Result.fill(Qt::transparent);
    QPainter Painter(&Result);
    Painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient Fill(0, 0, 0, Side);
    Fill.setColorAt(0, Now().PlateTop);
    Fill.setColorAt(1, Now().PlateBottom);
    Painter.setPen(QPen(Now().PlateBorder, 1));
    Painter.setBrush(Fill);
    Painter.drawEllipse(QRectF(1, 1, Side - 2, Side - 2));
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(Now().PlateInk);
    Painter.drawEllipse(QPointF(Side / 2, 12), 2.6, 2.6);
    Painter.drawRoundedRect(QRectF(Side / 2 - 2.2, 17.5, 4.4, 13), 2.2, 2.2);
    return Result;
}

int ArrowWidth(int High)
{
    constexpr int Most = 17;
    return std::min(Most, High * Most / ComboHeight);
}

void PaintArrow(QPainter& Painter, const QRectF& Box, const QColor& Colour)
{
    Painter.save();
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(QPen(Colour, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF Tip = Box.center() + QPointF(0, 2);
    Painter.drawPolyline(QPolygonF{Tip + QPointF(-4, -4), Tip, Tip + QPointF(4, -4)});
    Painter.restore();
}

} // namespace orvane::look
