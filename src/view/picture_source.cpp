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

    QSize Size() const { return Reader.size(); } // known before it is read
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

fs::path Beside(const fs::path& File, const char* Mark, const fs::path& Suffix)
{
    fs::path Result = File;
    return Result.replace_filename(File.stem().string() + Mark + Suffix.string());
}

// A GIF has no soft edges, so a PNG of the same name is shown in its place.
fs::path SoftTwin(const fs::path& File)
{
    const fs::path Twin = Beside(File, "", ".png");
    std::error_code Unknown;
    return File.extension() == ".gif" && fs::exists(Twin, Unknown) ? Twin : File;
}

// A picture and the size at which it stands in the box, in pixels of the screen's definition: as
// large as the box or, where it keeps its proportions, no larger than it is sharp. Where that asks
// for many more pixels than it has, its twin of double size is taken, if there is one.
std::pair<QImage, QSizeF> ReadFor(const fs::path& File, QSizeF Box, double Density,
                                  PictureSource::Fit How)
{
    constexpr double Enough = 1.1; // below it nobody sees a difference
    const bool KeepsProportions = How == PictureSource::Fit::KeepingProportions;
    Decoder Plain(File);
    const QSizeF Natural = Plain.Size();
    const QSizeF Wished = KeepsProportions ? Natural.scaled(Box, Qt::KeepAspectRatio) : Box;
    QImage Result;
    if (Wished.width() * Density > Natural.width() * Enough)
        Result = Read(Beside(File, "@2x", File.extension()));
    const double Sharp = Result.isNull() ? 1 : 2;
    if (Result.isNull())
        Result = Plain.Read();
    const bool IsTooLarge = KeepsProportions && Wished.width() > Natural.width() * Sharp;
    return {Result, IsTooLarge ? Natural * Sharp : Wished};
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
    QImage Source;
    QSizeF Target;
    for (const fs::path& Each : {TheFile.File, TheFile.Otherwise})
        if (Source.isNull() && !Each.empty())
            std::tie(Source, Target) = ReadFor(SoftTwin(Each), Box, Density, How);
    if (Source.isNull())
        return {};
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
