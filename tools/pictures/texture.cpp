#include "pictures/texture.h"

#include "pictures/noise.h"
#include "pictures/writers.h"

#include <QColor>
#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace orvane::pictures {

namespace {

bool IsHammered(const TableRow& Row)
{
    const QString& Kind = Row.Cells["kind"];
    if (Kind != QLatin1String("nuages") && Kind != QLatin1String("martelage"))
        throw SourceError(QStringLiteral("%1 : grain inconnu « %2 »").arg(Row.Place, Kind));
    return Kind == QLatin1String("martelage");
}

Grain GrainOf(const TableRow& Row)
{
    return {IsHammered(Row), NumberOf(Row, "size", 0.5, 2000),
            static_cast<int>(NumberOf(Row, "octaves", 1, 8)), NumberOf(Row, "stretch", 0.01, 100),
            static_cast<std::uint32_t>(NumberOf(Row, "seed", 0, 100000))};
}

// A cell is a colour, or the name of a word of the palette.
QColor ColourOf(const TableRow& Row, const QString& Column, const Picture& P)
{
    const QColor Result(P.Colours.Words.value(Row.Cells[Column], Row.Cells[Column]));
    if (!Result.isValid())
        throw SourceError(
            QStringLiteral("%1 : couleur inconnue « %2 »").arg(Row.Place, Row.Cells[Column]));
    return Result;
}

QImage Drawn(const TableRow& Row, const Picture& P)
{
    const Grain Which = GrainOf(Row);
    const double Strength = NumberOf(Row, "strength", 0, 100) * 2.55;
    const QRgb Light = ColourOf(Row, "light", P).rgb(), Dark = ColourOf(Row, "dark", P).rgb();
    const double Unit = P.Colours.Words["largeur"].toDouble() / P.Size.width();
    QImage Result(P.Size, QImage::Format_ARGB32);
    for (int y = 0; y < Result.height(); ++y) {
        auto* Line = reinterpret_cast<QRgb*>(Result.scanLine(y));
        for (int x = 0; x < Result.width(); ++x) {
            const double Value = GrainAt(Which, x * Unit, y * Unit);
            const auto Alpha = static_cast<QRgb>(std::lround(std::abs(Value) * Strength));
            Line[x] = ((Value > 0 ? Light : Dark) & RGB_MASK) | Alpha << 24;
        }
    }
    return Result;
}

} // namespace

Textures::Textures(const QString& Folder)
    : Rows(ReadTable(
          QDir(Folder).filePath("skins/textures.tsv"),
          {"texture", "kind", "size", "octaves", "stretch", "strength", "light", "dark", "seed"}))
{
}

const TableRow& Textures::RowOf(const QString& Name, const Picture& P) const
{
    const auto Found = std::ranges::find_if(
        Rows, [&](const TableRow& Row) { return Row.Cells["texture"] == Name; });
    if (Found == Rows.end())
        throw SourceError(
            QStringLiteral("%1 : %2 : texture inconnue « %3 »").arg(P.Place, P.Source, Name));
    return *Found;
}

const QString& Textures::EncodedFor(const QString& Name, const Picture& P) const
{
    const TableRow& Row = RowOf(Name, P);
    const Key Which{Name, P.Size.width(), P.Size.height(), ColourOf(Row, "light", P).name(),
                    ColourOf(Row, "dark", P).name()};
    QString& Result = Made[Which];
    if (Result.isEmpty())
        Result = QStringLiteral("<image x=\"0\" y=\"0\" width=\"%1\" height=\"%2\" "
                                "xlink:href=\"data:image/png;base64,%3\"/>")
                     .arg(P.Colours.Words["largeur"], P.Colours.Words["hauteur"],
                          QString::fromLatin1(PngBytes(Drawn(Row, P)).toBase64()));
    return Result;
}

QString Textures::PutInto(QString Svg, const Picture& P) const
{
    static const QRegularExpression Mark(QStringLiteral("\\{texture:([\\w-]+)\\}"));
    for (auto Match = Mark.match(Svg); Match.hasMatch();
         Match = Mark.match(Svg, Match.capturedStart()))
        Svg.replace(Match.capturedStart(), Match.capturedLength(),
                    EncodedFor(Match.captured(1), P));
    return Svg;
}

} // namespace orvane::pictures
