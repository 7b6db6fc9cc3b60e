// Renders the drawings of a picture folder to the files that ship beside the program.

#include "pictures/drawing.h"
#include "pictures/skins.h"
#include "pictures/writers.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMap>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <iterator>

namespace {

using namespace orvane::pictures;

using Sizes = std::vector<Picture>; // of one file: more than one in an icon only

QByteArray Encoded(const Picture& P, const std::vector<QImage>& Images)
{
    const QString Suffix = QFileInfo(P.Output).suffix();
    const QImage& Image = Images.front();
    if (Suffix == QLatin1String("gif"))
        return GifBytes(Image);
    if (Suffix == QLatin1String("ico"))
        return IconBytes(Images);
    if (Suffix == QLatin1String("png"))
        return PngBytes(Image);
    if (Suffix == QLatin1String("jpg"))
        return JpegBytes(Image.convertToFormat(QImage::Format_RGB32), P.Quality);
    throw SourceError(QStringLiteral("%1 : format inconnu « .%2 »").arg(P.Place, Suffix));
}

void WriteFile(const QString& Path, const QByteArray& Bytes)
{
    const QString Folder = QFileInfo(Path).path();
    if (!QDir().mkpath(Folder))
        throw SourceError(QStringLiteral("%1 : impossible de créer le dossier").arg(Folder));
    QSaveFile File(Path);
    if (!File.open(QIODevice::WriteOnly) || File.write(Bytes) != Bytes.size() || !File.commit())
        throw SourceError(
            QStringLiteral("%1 : impossible d’écrire : %2").arg(Path, File.errorString()));
}

std::vector<Picture> AllPictures(const QString& Sources)
{
    const std::vector<Palette> Palettes = ReadPalettes(Sources);
    std::vector<Picture> Result = ReadManifest(Sources, Palettes);
    std::ranges::copy(ReadSkins(Sources, Palettes), std::back_inserter(Result));
    RefuseTwice(Result);
    return Result;
}

// Everything is rendered before anything is written: a bad drawing leaves the folder as it was.
qsizetype MakePictures(const QString& Sources, const QString& Target)
{
    QMap<QString, Sizes> Outputs;
    for (const Picture& P : AllPictures(Sources))
        Outputs[P.Output].push_back(P);
    const Drawings Renderer(Sources);
    QMap<QString, QByteArray> Files;
    for (auto It = Outputs.cbegin(); It != Outputs.cend(); ++It) {
        std::vector<QImage> Images;
        for (const Picture& P : It.value())
            Images.push_back(Renderer.Render(P));
        Files.insert(It.key(), Encoded(It.value().front(), Images));
    }
    for (auto It = Files.cbegin(); It != Files.cend(); ++It)
        WriteFile(QDir(Target).filePath(It.key()), It.value());
    return Files.size();
}

} // namespace

int main(int Count, char* Arguments[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication Application(Count, Arguments);
    const QStringList Given = Application.arguments();
    if (Given.size() != 3) {
        std::fputs("Usage : make_pictures <data/pictures> <dossier de sortie>\n", stderr);
        return 2;
    }
    try {
        const qsizetype Made = MakePictures(Given[1], Given[2]);
        std::printf("%lld images écrites\n", static_cast<long long>(Made));
        return 0;
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "make_pictures : %s\n", Error.what());
        return 1;
    }
}
