#include "pictures/writers.h"

#include <QBuffer>
#include <QDataStream>
#include <QImageWriter>

#include <algorithm>
#include <stdexcept>

namespace orvane::pictures {

namespace {

constexpr quint32 HeaderBytes = 6;
constexpr quint32 EntryBytes = 16;
constexpr int LargestIcon = 256;
constexpr int UsualQuality = -1;

quint8 Side(int Pixels)
{
    if (Pixels > LargestIcon)
        throw std::runtime_error("ICO : une icône ne dépasse pas 256 points de côté");
    return static_cast<quint8>(Pixels % LargestIcon); // the format writes 256 as 0
}

QByteArray QtBytes(const QImage& Image, const char* Format, int Quality)
{
    QByteArray Result;
    QBuffer Buffer(&Result);
    Buffer.open(QIODevice::WriteOnly);
    QImageWriter Writer(&Buffer, Format);
    Writer.setQuality(Quality);
    if (!Writer.write(Image))
        throw std::runtime_error(Writer.errorString().toStdString());
    return Result;
}

} // namespace

QByteArray IconBytes(std::vector<QImage> Sizes)
{
    std::ranges::sort(Sizes, {}, &QImage::width);
    QByteArray Directory, Bodies;
    QDataStream Out(&Directory, QIODevice::WriteOnly);
    Out.setByteOrder(QDataStream::LittleEndian);
    Out << quint16{0} << quint16{1} << static_cast<quint16>(Sizes.size());
    const quint32 FirstBody = HeaderBytes + EntryBytes * static_cast<quint32>(Sizes.size());
    for (const QImage& Image : Sizes) {
        const QByteArray Png = PngBytes(Image);
        Out << Side(Image.width()) << Side(Image.height()) << quint8{0} << quint8{0};
        Out << quint16{1} << quint16{32} << static_cast<quint32>(Png.size());
        Out << FirstBody + static_cast<quint32>(Bodies.size());
        Bodies += Png;
    }
    return Directory + Bodies;
}

QByteArray PngBytes(const QImage& Image)
{
    return QtBytes(Image, "PNG", UsualQuality);
}

QByteArray JpegBytes(const QImage& Image, int Quality)
{
    return QtBytes(Image, "JPEG", Quality);
}

} // namespace orvane::pictures
