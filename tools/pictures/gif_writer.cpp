#include "pictures/quantizer.h"
#include "pictures/writers.h"

#include <algorithm>
#include <array>
#include <gif_lib.h>
#include <memory>
#include <stdexcept>

namespace orvane::pictures {

namespace {

constexpr int LeastAlpha = 128;

void Check(int Status)
{
    if (Status == GIF_ERROR)
        throw std::runtime_error("GIF : l’écriture a échoué");
}

int AppendTo(GifFileType* Gif, const GifByteType* Bytes, int Count)
{
    static_cast<QByteArray*>(Gif->UserData)->append(reinterpret_cast<const char*>(Bytes), Count);
    return Count;
}

struct CloseGif
{
    void operator()(GifFileType* Gif) const
    {
        int Error = 0;
        EGifCloseFile(Gif, &Error);
    }
};

struct FreeMap
{
    void operator()(ColorMapObject* Map) const { GifFreeMapObject(Map); }
};

// The format wants a power of two; the rest of the table is black.
std::unique_ptr<ColorMapObject, FreeMap> MapOf(const QList<QRgb>& Colours)
{
    std::vector<GifColorType> Entries(std::size_t{1}
                                      << GifBitSize(static_cast<int>(Colours.size())));
    std::ranges::transform(Colours, Entries.begin(), [](QRgb Colour) {
        return GifColorType{static_cast<GifByteType>(qRed(Colour)),
                            static_cast<GifByteType>(qGreen(Colour)),
                            static_cast<GifByteType>(qBlue(Colour))};
    });
    return std::unique_ptr<ColorMapObject, FreeMap>(
        GifMakeMapObject(static_cast<int>(Entries.size()), Entries.data()));
}

// Pixels that are at least half there, whole.
QImage WithHardEdges(const QImage& Image)
{
    QImage Result = Image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < Result.height(); ++y)
        for (int x = 0; x < Result.width(); ++x) {
            const QRgb Pixel = Result.pixel(x, y);
            Result.setPixel(x, y, qAlpha(Pixel) < LeastAlpha ? 0 : Pixel | 0xFF000000);
        }
    return Result;
}

void PutTransparency(GifFileType* Gif)
{
    const GraphicsControlBlock Block{DISPOSAL_UNSPECIFIED, false, 0, 0};
    std::array<GifByteType, 4> Bytes{};
    EGifGCBToExtension(&Block, Bytes.data());
    Check(EGifPutExtension(Gif, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(Bytes.size()),
                           Bytes.data()));
}

} // namespace

QByteArray GifBytes(const QImage& Image)
{
    QImage Picture = Quantized(WithHardEdges(Image));
    const int Width = Picture.width(), Height = Picture.height();
    const auto Map = MapOf(Picture.colorTable());
    QByteArray Result;
    int Error = 0;
    std::unique_ptr<GifFileType, CloseGif> Gif(EGifOpen(&Result, &AppendTo, &Error));
    if (!Gif || !Map)
        throw std::runtime_error("GIF : mémoire insuffisante");

    EGifSetGifVersion(Gif.get(), true);
    Check(EGifPutScreenDesc(Gif.get(), Width, Height, 8, 0, Map.get()));
    PutTransparency(Gif.get());
    Check(EGifPutImageDesc(Gif.get(), 0, 0, Width, Height, false, nullptr));
    for (int y = 0; y < Height; ++y)
        Check(EGifPutLine(Gif.get(), Picture.scanLine(y), Width));
    Check(EGifCloseFile(Gif.release(), &Error));
    return Result;
}

} // namespace orvane::pictures
