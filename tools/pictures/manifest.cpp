#include "pictures/manifest.h"

#include <QDir>
#include <QSet>

#include <algorithm>

namespace orvane::pictures {

namespace {

constexpr QLatin1String Gif(".gif");

struct Variant
{
    std::vector<Palette> Each;
    bool Plaque = false;
    bool Double = false;
};

Variant VariantOf(const TableRow& Row, const std::vector<Palette>& Palettes)
{
    Variant Result;
    for (const QString& Word : Row.Cells["variant"].split(' ', Qt::SkipEmptyParts)) {
        if (Word == QLatin1String("plaque"))
            Result.Plaque = true;
        else if (Word == QLatin1String("x2"))
            Result.Double = true;
        else {
            const std::size_t Before = Result.Each.size();
            std::ranges::copy_if(Palettes, std::back_inserter(Result.Each), [&](const Palette& P) {
                return P.Name == Word || (P.IsRoyaume && Word == QLatin1String("royaumes"));
            });
            if (Result.Each.size() == Before)
                throw SourceError(
                    QStringLiteral("%1 : variante inconnue « %2 »").arg(Row.Place, Word));
        }
    }
    if (Result.Each.empty())
        throw SourceError(
            QStringLiteral("%1 : la variante ne nomme aucune palette").arg(Row.Place));
    return Result;
}

std::vector<Picture> PicturesOf(const TableRow& Row, const std::vector<Palette>& Palettes)
{
    std::vector<Picture> Result;
    const Variant V = VariantOf(Row, Palettes);
    const QSize Size(SideOf(Row, "width"), SideOf(Row, "height"));
    for (const Palette& Colours : V.Each) {
        Picture P{Row.Place,
                  ForPalette(Row.Cells["output"], Colours),
                  ForPalette(Row.Cells["source"], Colours),
                  Size,
                  Colours,
                  V.Plaque};
        RefuseOutsidePath(Row, P.Output);
        RefuseOutsidePath(Row, P.Source);
        Result.push_back(P);
        if (!V.Double)
            continue;
        if (P.Output.endsWith(Gif)) { // which has no soft edges, and few colours
            P.Output.replace(P.Output.size() - Gif.size(), Gif.size(), QLatin1String(".png"));
            Result.push_back(P);
        }
        Result.push_back(AtTwice(P));
    }
    return Result;
}

} // namespace

Picture AtTwice(Picture P)
{
    P.Output.insert(P.Output.lastIndexOf('.'), QLatin1String("@2x"));
    P.Size *= 2;
    return P;
}

int SideOf(const TableRow& Row, const QString& Column)
{
    bool IsNumber = false;
    const int Side = Row.Cells[Column].toInt(&IsNumber);
    if (!IsNumber || Side < 1 || Side > LargestSide)
        throw SourceError(
            QStringLiteral("%1 : taille « %2 » refusée").arg(Row.Place, Row.Cells[Column]));
    return Side;
}

QString ForPalette(QString Text, const Palette& Colours)
{
    return Text.replace(QLatin1String("{Royaume}"), Colours.Name)
        .replace(QLatin1String("{royaume}"), Colours.Words["royaume"]);
}

void RefuseOutsidePath(const TableRow& Row, const QString& Path)
{
    if (QDir::isAbsolutePath(Path) || QDir::cleanPath(Path).startsWith(QLatin1String("..")))
        throw SourceError(
            QStringLiteral("%1 : le chemin « %2 » sort du dossier").arg(Row.Place, Path));
}

void RefuseTwice(const std::vector<Picture>& Pictures)
{
    QSet<QString> Seen;
    for (const Picture& P : Pictures) {
        const bool IsIcon = P.Output.endsWith(QLatin1String(".ico"));
        const QString Key = IsIcon ? P.Output + ' ' + QString::number(P.Size.width()) : P.Output;
        if (Seen.contains(Key))
            throw SourceError(
                QStringLiteral("%1 : « %2 » est déjà dans la liste").arg(P.Place, P.Output));
        Seen.insert(Key);
    }
}

std::vector<Palette> ReadPalettes(const QString& Folder)
{
    std::vector<Palette> Result;
    for (const TableRow& Row :
         ReadTable(QDir(Folder).filePath("palettes.tsv"), {"palette", "royaume"}))
        Result.push_back(
            {Row.Cells["palette"], Row.Cells["royaume"] != QLatin1String("-"), Row.Cells});
    return Result;
}

std::vector<Picture> ReadManifest(const QString& Folder, const std::vector<Palette>& Palettes)
{
    std::vector<Picture> Result;
    for (const TableRow& Row : ReadTable(QDir(Folder).filePath("manifest.tsv"),
                                         {"output", "source", "width", "height", "variant"}))
        std::ranges::copy(PicturesOf(Row, Palettes), std::back_inserter(Result));
    return Result;
}

} // namespace orvane::pictures
