#include "pictures/skins.h"

#include <QDir>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace orvane::pictures {

namespace {

const QString CommonFolder = QStringLiteral("Commun"); // of screens that are alike at every size
const QString NoneCell = QStringLiteral("-");

constexpr int BackgroundQuality = 88;
constexpr int ButtonQuality = 92;
constexpr double EmblemSide = 100;

struct Skin
{
    QString Name;
    QString Drawings;
    QString Family;
    QStringList Common; // screens
    QHash<QString, QString> Colours;
};

struct ImageFolder
{
    QString Name;
    double Factor;
};

// The rows of the tables that say what a skin is made of.
struct Sources
{
    std::vector<Palette> Palettes;
    std::vector<Skin> Skins;
    std::vector<ImageFolder> Folders;
    std::vector<TableRow> Backgrounds;
    std::vector<TableRow> Buttons;
};

std::vector<TableRow> ReadSkinTable(const QString& Folder, const QString& Name,
                                    const QStringList& Columns)
{
    return ReadTable(QDir(Folder).filePath("skins/" + Name), Columns);
}

// The screens that the skin's layouts say are alike at every resolution, without their prefix.
QStringList CommonScreens(const QString& Folder, const QString& Skin)
{
    const QString Prefix = QStringLiteral("frm_");
    QStringList Result;
    for (const TableRow& Row :
         ReadTable(QDir(Folder).filePath("../skins/" + Skin + "/RésolutionCommune.tsv"),
                   {"Nom", "Commun"}))
        if (Row.Cells["Commun"] == QStringLiteral("O"))
            Result << Row.Cells["Nom"].mid(Prefix.size());
    return Result;
}

std::vector<Skin> SkinsOf(const QString& Folder)
{
    const std::vector<TableRow> Colours = ReadSkinTable(Folder, "palettes.tsv", {"palette"});
    const std::vector<TableRow> Skins =
        ReadSkinTable(Folder, "skins.tsv", {"skin", "palette", "drawings", "font"});
    std::vector<Skin> Result;
    for (const TableRow& Row : Skins) {
        const auto Same = [&](const TableRow& Each) {
            return Each.Cells["palette"] == Row.Cells["palette"];
        };
        const auto Found = std::ranges::find_if(Colours, Same);
        if (Found == Colours.end())
            throw SourceError(QStringLiteral("%1 : palette inconnue « %2 »")
                                  .arg(Row.Place, Row.Cells["palette"]));
        RefuseOutsidePath(Row, Row.Cells["skin"]);
        Result.push_back({Row.Cells["skin"], Row.Cells["drawings"], Row.Cells["font"],
                          CommonScreens(Folder, Row.Cells["skin"]), Found->Cells});
    }
    return Result;
}

std::vector<ImageFolder> FoldersOf(const QString& Folder)
{
    std::vector<ImageFolder> Result;
    for (const TableRow& Row : ReadSkinTable(Folder, "resolutions.tsv", {"folder", "factor"}))
        Result.push_back({Row.Cells["folder"], NumberOf(Row, "factor", 0.1, 10)});
    return Result;
}

void RefuseUnknownCommon(const Sources& From)
{
    QSet<QString> Screens{NoneCell};
    for (const auto* Each : {&From.Backgrounds, &From.Buttons})
        for (const TableRow& Row : *Each)
            Screens.insert(Row.Cells["screen"]);
    for (const Skin& Each : From.Skins)
        for (const QString& Screen : Each.Common)
            if (!Screens.contains(Screen))
                throw SourceError(QStringLiteral("skins.tsv : « %1 » : feuille inconnue « %2 »")
                                      .arg(Each.Name, Screen));
}

// The words of a skin's drawings: the realm's, or those of none, then the skin's own.
Palette WordsFor(const Skin& Look, const Palette& Realm, const TableRow& Row)
{
    Palette Result = Realm;
    Result.Words.insert(Look.Colours);
    Result.Words["largeur"] = Row.Cells["width"];
    Result.Words["hauteur"] = Row.Cells["height"];
    Result.Words["milieu-x"] = QString::number(SideOf(Row, "width") / 2.0);
    Result.Words["milieu-y"] = QString::number(SideOf(Row, "height") / 2.0);
    return Result;
}

QSize Scaled(const TableRow& Row, double Factor)
{
    const auto Side = [&](const QString& Column) {
        return static_cast<int>(std::lround(SideOf(Row, Column) * Factor));
    };
    return {Side("width"), Side("height")};
}

std::vector<Palette> RealmsOf(const Sources& From, const TableRow& Row)
{
    const bool ForRealms = Row.Cells["file"].contains(QLatin1String("{Royaume}"));
    std::vector<Palette> Result;
    std::ranges::copy_if(From.Palettes, std::back_inserter(Result), [&](const Palette& P) {
        return ForRealms ? P.IsRoyaume : P.Name == QLatin1String("Commun");
    });
    return Result;
}

Picture PictureOf(const Skin& Look, const ImageFolder& Images, const TableRow& Row,
                  const Palette& Realm)
{
    Picture Result{Row.Place,
                   ForPalette(QStringList{"Skins", Look.Name, Images.Name, Row.Cells["screen"],
                                          Row.Cells["file"]}
                                  .join('/'),
                              Realm),
                   "skins/" + Look.Drawings + '/' + Row.Cells["drawing"] + ".svg",
                   Scaled(Row, Images.Factor), WordsFor(Look, Realm, Row)};
    RefuseOutsidePath(Row, Result.Output);
    RefuseOutsidePath(Row, Result.Source);
    return Result;
}

// Where the background's drawing says {dessin-embleme}.
QString EmblemOf(const TableRow& Row)
{
    if (Row.Cells["emblem"] == NoneCell)
        return {};
    return QStringLiteral("<g transform=\"translate(%1 %2) scale(%3)\">"
                          "{inclure:skins/emblemes/%4.svg}</g>")
        .arg(NumberOf(Row, "x", 0, LargestSide))
        .arg(NumberOf(Row, "y", 0, LargestSide))
        .arg(NumberOf(Row, "side", 1, LargestSide) / EmblemSide)
        .arg(Row.Cells["emblem"]);
}

Picture AsBackground(Picture P, const TableRow& Row, const Skin&)
{
    P.Colours.Words["dessin-embleme"] = EmblemOf(Row);
    P.Quality = BackgroundQuality;
    return P;
}

Picture AsButton(Picture P, const TableRow& Row, const Skin& Look)
{
    P.Quality = ButtonQuality;
    QHash<QString, QString>& Words = P.Colours.Words;
    for (const char* Shade : {"-clair", "", "-sombre"})
        Words["plaque" + QLatin1String(Shade)] = Words[Row.Cells["ground"] + QLatin1String(Shade)];
    const QString Glyph = Row.Cells["glyph"];
    P.Written = {Row.Cells["words"], Look.Family,
                 Glyph == NoneCell ? QString() : "skins/glyphes/" + Glyph + ".svg",
                 NumberOf(Row, "letters", 1, 100)};
    return P;
}

std::vector<Picture> BothDensities(const std::vector<Picture>& Pictures)
{
    std::vector<Picture> Result;
    for (const Picture& Each : Pictures) {
        Result.push_back(Each);
        Result.push_back(AtTwice(Each));
    }
    return Result;
}

// A row for every folder, unless the same file has one for this folder alone.
bool IsFor(const ImageFolder& Images, const TableRow& Row, const std::vector<TableRow>& Rows)
{
    const auto IsOwn = [&](const TableRow& Each) {
        return Each.Cells["folder"] == Images.Name && Each.Cells["screen"] == Row.Cells["screen"] &&
               Each.Cells["file"] == Row.Cells["file"];
    };
    return Row.Cells["folder"] == NoneCell ? std::ranges::none_of(Rows, IsOwn) : IsOwn(Row);
}

template <typename Kind>
void Append(std::vector<Picture>& Result, const Sources& From, const std::vector<TableRow>& Rows,
            Kind Finished)
{
    for (const Skin& Look : From.Skins)
        for (const ImageFolder& Images : From.Folders)
            for (const TableRow& Row : Rows) {
                if (Look.Common.contains(Row.Cells["screen"]) != (Images.Name == CommonFolder) ||
                    !IsFor(Images, Row, Rows))
                    continue;
                for (const Palette& Realm : RealmsOf(From, Row))
                    Result.push_back(Finished(PictureOf(Look, Images, Row, Realm), Row, Look));
            }
}

} // namespace

std::vector<Picture> ReadSkins(const QString& Folder, const std::vector<Palette>& Palettes)
{
    const QStringList Shared{"screen", "file", "folder", "drawing", "width", "height"};
    const Sources From{
        Palettes, SkinsOf(Folder), FoldersOf(Folder),
        ReadSkinTable(Folder, "backgrounds.tsv", Shared + QStringList{"emblem", "x", "y", "side"}),
        ReadSkinTable(Folder, "buttons.tsv",
                      Shared + QStringList{"letters", "glyph", "words", "ground"})};
    RefuseUnknownCommon(From);
    std::vector<Picture> Result;
    Append(Result, From, From.Backgrounds, AsBackground);
    std::vector<Picture> Buttons;
    Append(Buttons, From, From.Buttons, AsButton);
    Buttons = BothDensities(Buttons);
    Result.insert(Result.end(), Buttons.begin(), Buttons.end());
    return Result;
}

} // namespace orvane::pictures
