#include "pictureFiles.h"

#include "DrawingRecorder.h"
#include "Error.h"
#include "drawing.h"

#include <QBuffer>
#include <gif_lib.h>

#include <memory>
#include <vector>

namespace fleetwright {

namespace {

int appendTo(GifFileType* gif, const GifByteType* bytes, int count) {
    static_cast<std::string*>(gif->UserData)
        ->append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
    return count;
}

struct FreeMap {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};

/// The image's colours; the library wants a power of two of them.
std::unique_ptr<ColorMapObject, FreeMap> colourMap(const QImage& image) {
    int count = 2;
    while (count < image.colorCount()) {
        count *= 2;
    }
    std::vector<GifColorType> colours(static_cast<std::size_t>(count));
    for (int i = 0; i < image.colorCount(); ++i) {
        const QRgb colour = image.color(i);
        colours[static_cast<std::size_t>(i)] = {static_cast<GifByteType>(qRed(colour)),
                                                static_cast<GifByteType>(qGreen(colour)),
                                                static_cast<GifByteType>(qBlue(colour))};
    }
    return std::unique_ptr<ColorMapObject, FreeMap>(GifMakeMapObject(count, colours.data()));
}

}  // namespace

std::string gifFile(const QImage& image) {
    std::string bytes;
    int error = 0;
    GifFileType* const gif = EGifOpen(&bytes, appendTo, &error);
    const auto map = colourMap(image);
    bool isDone =
        gif != nullptr && map != nullptr &&
        EGifPutScreenDesc(gif, image.width(), image.height(), map->BitsPerPixel, 0, map.get()) !=
            GIF_ERROR &&
        EGifPutImageDesc(gif, 0, 0, image.width(), image.height(), false, nullptr) != GIF_ERROR;
    for (int y = 0; isDone && y < image.height(); ++y) {
        const uchar* const row = image.constScanLine(y);
        std::vector<GifPixelType> pixels(row, row + image.width());
        isDone = EGifPutLine(gif, pixels.data(), image.width()) != GIF_ERROR;
    }
    const bool isClosed = gif != nullptr && EGifCloseFile(gif, &error) != GIF_ERROR;
    if (!isDone || !isClosed) {
        throw Error("cannot make a GIF file");
    }
    return bytes;
}

PictureFile inkPicture(const std::vector<QByteArray>& layers, QSize size) {
    return {gifFile(drawInk(layers, size)), recordDrawing(layers, size)};
}

std::string imageFile(const QImage& image, const char* format) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format)) {
        throw Error(std::string("cannot make a file of the format ") + format);
    }
    return buffer.data().toStdString();
}

}  // namespace fleetwright
