#include "view/picture_source.h"

#include "toolkit/picture_file.h"

#include <QBuffer>
#include <QImageReader>

#include <tuple>

namespace orvane {

namespace fs = std::filesystem;

namespace {

// The reader of a picture's bytes: the toolkit would take a path for text, which it needn't be.
class Decoder
{
  public:
    explicit Decoder(const fs::path& File) : Content(PictureContent(File))
    {
        Buffer.setData(
            QByteArray::fromRawData(Content.data(), static_cast<qsizetype>(Content.size())));
        Buffer.open(QIODevice::ReadOnly);
        Reader.setDevice(&Buffer);
        Reader.setAutoTransform(true);
    }

    QImage Read() { return Reader.read(); }
    bool GoesOn() { return Reader.jumpToNextImage(); }

  private:
    std::string Content;
    QBuffer Buffer;
    QImageReader Reader;
};

QImage Read(const fs::path& File)
{
    return Decoder(File).Read();
}

// The sharper of the two files and how many of its pixels go into one of the screen's definition.
std::pair<QImage, double> ReadFor(const fs::path& File, double Density)
{
    if (Density > 1) {
        fs::path Dense = File;
        Dense.replace_filename(File.stem().string() + "@2x" + File.extension().string());
        if (QImage Result = Read(Dense); !Result.isNull())
            return {Result, 2};
    }
    return {Read(File), 1};
}

} // namespace

void PictureSource::Set(const Picture& NewPicture)
{
    TheFile = NewPicture;
    MadeFor = {};
}

const QPixmap& PictureSource::For(QSize Box, double Density, Fit How)
{
    if (MadeFor != Box || MadeDensity != Density) {
        Made = TheFile.IsEmpty() || Box.isEmpty() ? QPixmap() : Scaled(Box, Density, How);
        MadeFor = Box;
        MadeDensity = Density;
    }
    return Made;
}

QPixmap PictureSource::Scaled(QSize Box, double Density, Fit How) const
{
    auto [Source, PerPixel] = ReadFor(TheFile.File, Density);
    if (Source.isNull())
        std::tie(Source, PerPixel) = ReadFor(TheFile.Otherwise, Density);
    if (Source.isNull())
        return {};
    QSizeF Target = Box;
    if (How == Fit::KeepingProportions) {
        const QSizeF Natural = QSizeF(Source.size()) / PerPixel;
        Target = Natural.scaled(Target, Qt::KeepAspectRatio);
        if (Target.width() > Natural.width())
            Target = Natural;
    }
    const QSize Pixels = (Target * Density).toSize().expandedTo(QSize(1, 1));
    if (Pixels != Source.size())
        Source = Source.scaled(Pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPixmap Result = QPixmap::fromImage(std::move(Source));
    Result.setDevicePixelRatio(Density);
    return Result;
}

QIcon IconOf(const Picture& Given)
{
    QIcon Icon;
    Decoder Sizes(Given.File);
    do {
        if (const QImage Each = Sizes.Read(); !Each.isNull())
            Icon.addPixmap(QPixmap::fromImage(Each));
    } while (Sizes.GoesOn());
    return Icon;
}

} // namespace orvane
