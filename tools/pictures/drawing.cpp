#include "pictures/drawing.h"

#include "pictures/lettering.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace orvane::pictures {

namespace {

// Qt reports an unknown gradient or an odd attribute as a warning only: here it is a fault.
class WarningTrap
{
  public:
    WarningTrap() : Former(qInstallMessageHandler(&WarningTrap::Take)) { Warnings.clear(); }
    ~WarningTrap() { qInstallMessageHandler(Former); }
    WarningTrap(const WarningTrap&) = delete;
    WarningTrap& operator=(const WarningTrap&) = delete;

    QString First() const { return Warnings.value(0); }

  private:
    static void Take(QtMsgType, const QMessageLogContext&, const QString& Text)
    {
        Warnings << Text;
    }

    static inline QStringList Warnings;
    QtMessageHandler Former;
};

SourceError Fault(const Picture& P, const QString& What)
{
    return SourceError(QStringLiteral("%1 : %2 : %3").arg(P.Place, P.Source, What));
}

QString InsideOfSvg(const Picture& P, const QString& Name, const QString& Text)
{
    static const QRegularExpression Opening(QStringLiteral("<svg\\b[^>]*>"));
    const QRegularExpressionMatch Match = Opening.match(Text);
    const qsizetype End = Text.lastIndexOf(QLatin1String("</svg>"));
    if (!Match.hasMatch() || End < Match.capturedEnd())
        throw Fault(P, QStringLiteral("« %1 » n’a pas d’élément <svg>").arg(Name));
    return Text.mid(Match.capturedEnd(), End - Match.capturedEnd());
}

QString WithWords(const Picture& P, const QString& Text)
{
    static const QRegularExpression Word(QStringLiteral("\\{([\\p{L}\\d-]+)\\}"));
    QString Result;
    qsizetype Done = 0;
    for (auto Found = Word.globalMatch(Text); Found.hasNext();) {
        const QRegularExpressionMatch Match = Found.next();
        const QString Name = Match.captured(1);
        if (!P.Colours.Words.contains(Name))
            throw Fault(P, QStringLiteral("mot de palette inconnu « {%1} »").arg(Name));
        Result += QStringView(Text).mid(Done, Match.capturedStart() - Done);
        Result += P.Colours.Words[Name];
        Done = Match.capturedEnd();
    }
    return Result + QStringView(Text).mid(Done).toString();
}

QString ReadDrawing(const QString& Folder, const Picture& P, const QString& Name)
{
    QFile File(QDir(Folder).filePath(Name));
    if (!File.open(QIODevice::ReadOnly))
        throw Fault(P, QStringLiteral("« %1 » est introuvable ou illisible").arg(Name));
    return QString::fromUtf8(File.readAll());
}

// The plate's drawing holds {dessin} where the object goes.
QString OuterText(const QString& Folder, const Picture& P)
{
    if (!P.Plaque)
        return ReadDrawing(Folder, P, P.Source);
    return ReadDrawing(Folder, P, "plaque.svg")
        .replace(QLatin1String("{dessin}"), "{inclure:" + P.Source + '}');
}

// Qt draws an unreadable colour as no colour at all, without a warning.
void RefuseOddColours(const Picture& P, const QString& Svg)
{
    static const QRegularExpression Paint(
        QStringLiteral("\\b(?:fill|stroke|stop-color)=\"(?!none\"|inherit\"|url\\()([^\"]*)\""));
    for (auto Found = Paint.globalMatch(Svg); Found.hasNext();)
        if (const QString Colour = Found.next().captured(1); !QColor::isValidColor(Colour))
            throw Fault(P, QStringLiteral("couleur inconnue « %1 »").arg(Colour));
}

void RefuseStretching(const Picture& P, const QRectF& Box)
{
    const double Wanted = double(P.Size.width()) / P.Size.height();
    if (Box.isEmpty() || std::abs(Box.width() / Box.height() / Wanted - 1) > 0.02)
        throw Fault(P, QStringLiteral("les proportions du dessin (%1 × %2) ne sont pas celles de "
                                      "l’image (%3 × %4)")
                           .arg(Box.width())
                           .arg(Box.height())
                           .arg(P.Size.width())
                           .arg(P.Size.height()));
}

bool IsBlank(const QImage& Image)
{
    return std::all_of(Image.constBits(), Image.constBits() + Image.sizeInBytes(),
                       [](uchar Byte) { return Byte == 0; });
}

} // namespace

Drawings::Drawings(const QString& Folder) : Folder(Folder), Grains(Folder) {}

// "{inclure:x.svg}" stands for the inside of the <svg> element of x.svg; a file comes in once, at
// its first mention.
QString Drawings::Expanded(const Picture& P) const
{
    static const QRegularExpression Inclusion(QStringLiteral("\\{inclure:([\\w./-]+)\\}"));
    QSet<QString> Included;
    QString Text = WithWords(P, OuterText(Folder, P));
    for (auto Match = Inclusion.match(Text); Match.hasMatch(); Match = Inclusion.match(Text)) {
        const QString Name = Match.captured(1);
        QString Inside;
        if (!Included.contains(Name))
            Inside = InsideOfSvg(P, Name, WithWords(P, ReadDrawing(Folder, P, Name)));
        Included.insert(Name);
        Text.replace(Match.capturedStart(), Match.capturedLength(), Inside);
    }
    return Text;
}

QImage Drawings::Plain(const Picture& P) const
{
    const QString Svg = Expanded(P);
    if (Svg.contains(QLatin1String("<text"))) // its look would depend on the machine's fonts
        throw Fault(P, QStringLiteral("un dessin ne contient pas de <text> : convertir en tracés"));
    RefuseOddColours(P, Svg);
    const WarningTrap Trap;
    QSvgRenderer Renderer;
    if (!Renderer.load(Grains.PutInto(Svg, P).toUtf8()))
        throw Fault(P, QStringLiteral("ce n’est pas un dessin SVG valable. ") + Trap.First());
    RefuseStretching(P, Renderer.viewBoxF());

    QImage Image(P.Size, QImage::Format_ARGB32_Premultiplied);
    Image.fill(Qt::transparent);
    QPainter Painter(&Image);
    Painter.setRenderHint(QPainter::Antialiasing);
    Renderer.render(&Painter, QRectF(QPointF(), QSizeF(P.Size)));
    Painter.end();

    if (!Trap.First().isEmpty())
        throw Fault(P, Trap.First());
    if (IsBlank(Image))
        throw Fault(P, QStringLiteral("l’image est vide"));
    return Image;
}

QImage Drawings::Written(const Picture& P, QImage Plate) const
{
    QImage Glyph;
    if (!P.Written.Glyph.isEmpty()) {
        Picture Drawn = P;
        Drawn.Source = P.Written.Glyph;
        Drawn.Size = GlyphSize(P);
        Glyph = Plain(Drawn);
    }
    WriteOn(Plate, Glyph, P);
    return Plate;
}

QImage Drawings::Render(const Picture& P) const
{
    const QImage Image = Plain(P);
    if (!P.Written.Words.isEmpty())
        return Written(P, Image);
    return Image;
}

} // namespace orvane::pictures
