#include "pictures/lettering.h"

#include <QColor>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace orvane::pictures {

namespace {

// In font sizes.
constexpr double GlyphSide = 1.75;
constexpr double Gap = 0.5; // from the glyph to the words
constexpr double LineStep = 1.2;
constexpr double Raise = 0.06; // of two lines, for the tails below the lower one
constexpr double ShadowDrop = 0.07;

constexpr double Margin = 0.27; // at either side, in heights of the plate
constexpr double TallestGlyph = 0.66;

SourceError Fault(const Picture& P, const QString& What)
{
    return SourceError(QStringLiteral("%1 : %2").arg(P.Place, What));
}

double FontPixels(const Picture& P)
{
    return P.Written.Size * P.Size.height() / P.Colours.Words["hauteur"].toDouble();
}

QFont FontOf(const Picture& P)
{
    const QString& Family = P.Written.Family;
    if (!QFontDatabase::hasFamily(Family) || !QFontDatabase::styles(Family).contains("Bold"))
        throw Fault(P,
                    QStringLiteral("la police « %1 » (Bold) manque sur cette machine ; le paquet "
                                   "fonts-dejavu-core contient celles des skins fournies")
                        .arg(Family));
    QFont Result(Family);
    Result.setBold(true);
    Result.setPixelSize(static_cast<int>(std::lround(FontPixels(P))));
    Result.setHintingPreference(QFont::PreferNoHinting);
    return Result;
}

double WidestOf(const QStringList& Lines, const QFontMetricsF& Metrics)
{
    double Result = 0;
    for (const QString& Line : Lines)
        Result = std::max(Result, Metrics.horizontalAdvance(Line));
    return Result;
}

// On one line if there is room for it, else on the two of the most equal length.
QStringList LinesOf(const Picture& P, const QFontMetricsF& Metrics, double Room)
{
    const QString& Words = P.Written.Words;
    QStringList Best{Words};
    double Widest = WidestOf(Best, Metrics);
    const bool OneIsEnough = Widest <= Room;
    for (qsizetype Blank = Words.indexOf(' '); Blank > 0 && !OneIsEnough;
         Blank = Words.indexOf(' ', Blank + 1)) {
        const QStringList Lines{Words.left(Blank), Words.mid(Blank + 1)};
        if (const double Width = WidestOf(Lines, Metrics); Width < Widest) {
            Best = Lines;
            Widest = Width;
        }
    }
    if (Widest > Room)
        throw Fault(P, QStringLiteral("« %1 » ne tient pas dans le bouton").arg(Words));
    return Best;
}

QPainterPath OutlinesOf(const QStringList& Lines, const QFont& Font, QPointF Centre)
{
    const QFontMetricsF Metrics(Font);
    const double Step = std::round(LineStep * Font.pixelSize());
    const double Block = Step * static_cast<double>(Lines.size() - 1) + Metrics.capHeight();
    const double Raised = Lines.size() > 1 ? Raise * Font.pixelSize() : 0;
    double Base = std::round(Centre.y() - Block / 2 - Raised + Metrics.capHeight());
    QPainterPath Result;
    for (const QString& Line : Lines) {
        Result.addText(Centre.x() - Metrics.horizontalAdvance(Line) / 2, Base, Font, Line);
        Base += Step;
    }
    return Result;
}

QImage Silhouette(QImage Glyph, const QColor& Colour)
{
    QPainter Painter(&Glyph);
    Painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    Painter.fillRect(Glyph.rect(), Colour);
    return Glyph;
}

} // namespace

QSize GlyphSize(const Picture& P)
{
    const double Side = std::min(GlyphSide * FontPixels(P), TallestGlyph * P.Size.height());
    return QSize(1, 1) * static_cast<int>(std::lround(Side));
}

void WriteOn(QImage& Plate, const QImage& Glyph, const Picture& P)
{
    const QFont Font = FontOf(P);
    const QFontMetricsF Metrics(Font);
    const double Before = Glyph.isNull() ? 0 : Glyph.width() + Gap * Font.pixelSize();
    const double Room = Plate.width() - 2 * Margin * Plate.height() - Before;
    const QStringList Lines = LinesOf(P, Metrics, Room);
    const double Width = WidestOf(Lines, Metrics);
    const QPointF Middle(Plate.width() / 2.0, Plate.height() / 2.0);
    const double Left = std::round(Middle.x() - (Before + Width) / 2);
    const QPainterPath Words = OutlinesOf(Lines, Font, {Left + Before + Width / 2, Middle.y()});
    const QPointF GlyphAt(Left, std::round(Middle.y() - Glyph.height() / 2.0));
    const QColor Shadow(P.Colours.Words["mots-ombre"]);
    const QPointF Drop(0, std::max(1.0, std::round(ShadowDrop * Font.pixelSize())));

    QPainter Painter(&Plate);
    Painter.setRenderHint(QPainter::Antialiasing);
    if (!Glyph.isNull()) {
        Painter.drawImage(GlyphAt + Drop, Silhouette(Glyph, Shadow));
        Painter.drawImage(GlyphAt, Glyph);
    }
    Painter.fillPath(Words.translated(Drop), Shadow);
    Painter.fillPath(Words, QColor(P.Colours.Words["mots"]));
}

} // namespace orvane::pictures
