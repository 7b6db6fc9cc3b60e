// Renders the drawings of a picture folder to the files that ship beside the program.

#include "pictures/drawing.h"
#include "pictures/effects.h"
#include "pictures/writers.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMap>
#include <QSaveFile>

#include <cstdio>
#include <exception>

namespace {

using namespace orvane::pictures;

struct Output
{
    QString Place;
    std::vector<QImage> Sizes; // more than one in an icon only
};

QByteArray Encoded(const QString& Path, const Output& Out)
{
    const QString Suffix = QFileInfo(Path).suffix();
    const QImage& Image = Out.Sizes.front();
    if (Suffix == QLatin1String("gif"))
        return GifBytes(OnParchment(Image));
    if (Suffix == QLatin1String("ico"))
        return IconBytes(Out.Sizes);
    if (Suffix == QLatin1String("png"))
        return QtBytes(Image, "PNG");
    if (Suffix == QLatin1String("jpg"))
        return QtBytes(OnParchment(Image).convertToFormat(QImage::Format_RGB32), "JPEG");
    throw SourceError(QStringLiteral("%1 : format inconnu « .%2 »").arg(Out.Place, Suffix));
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

// Everything is rendered before anything is written: a bad drawing leaves the folder as it was.
qsizetype MakePictures(const QString& Sources, const QString& Target)
{
    QMap<QString, Output> Outputs;
    for (const Picture& P : ReadManifest(Sources, ReadPalettes(Sources))) {
        Output& Out = Outputs[P.Output];
        Out.Place = P.Place;
        Out.Sizes.push_back(RenderDrawing(Sources, P));
    }
    QMap<QString, QByteArray> Files;
    for (auto It = Outputs.cbegin(); It != Outputs.cend(); ++It)
        Files.insert(It.key(), Encoded(It.key(), It.value()));
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
