#include "QtPictureFiles.h"

#include "BmpHeader.h"
#include "Error.h"
#include "QtMessages.h"
#include "bmpFile.h"
#include "checkPng.h"
#include "qtImage.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageIOHandler>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <span>
#include <utility>

namespace fleetwright {

namespace {

// Of memory for a picture, four bytes a pixel.
constexpr int mostMegabytes = int(mostPicturePixels / 1024 / 1024) * 4;

/// How bright each value of a channel is that the decoder has shifted up to 8 bits from fewer: it
/// leaves the lower bits empty, so that white would be none.
std::array<int, 256> brightnesses(std::uint32_t mask) {
    constexpr int most = 255;
    const int bits = std::clamp(std::popcount(mask), 1, 8);
    const int highest = (1 << bits) - 1;
    std::array<int, 256> bright{};
    for (int value = 0; value <= most; ++value) {
        bright[std::size_t(value)] = ((value >> (8 - bits)) * most + highest / 2) / highest;
    }
    return bright;
}

/// The image of a bitmap with as bright pixels as it says.
QImage asBright(QImage image, const BmpHeader& header) {
    if (header.bits != 16 && header.bits != 32) {
        return image;
    }
    const auto [red, green, blue] = header.channels();
    const auto reds = brightnesses(red), greens = brightnesses(green), blues = brightnesses(blue);
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        const std::span row(reinterpret_cast<QRgb*>(image.scanLine(y)),
                            static_cast<std::size_t>(image.width()));
        for (QRgb& pixel : row) {
            pixel = qRgba(reds[std::size_t(qRed(pixel))], greens[std::size_t(qGreen(pixel))],
                          blues[std::size_t(qBlue(pixel))], qAlpha(pixel));
        }
    }
    return image;
}

/// An image as it looks on white paper, pixel by pixel whatever resolution it is meant for.
QImage onWhite(QImage image) {
    if (!image.hasAlphaChannel()) {
        return image.convertToFormat(QImage::Format_RGB32);
    }
    QImage paper(image.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    image.setDevicePixelRatio(1);
    QPainter(&paper).drawImage(0, 0, image);
    return paper;
}

}  // namespace

Raster QtPictureFiles::decode(const std::string& bytes, const std::string& format) {
    if (format == "png") {
        checkPng(bytes);
    }
    QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, QByteArray::fromStdString(format));
    reader.setAutoDetectImageFormat(false);
    const QtMessages messages;
    const QSize size = reader.size();
    if (std::int64_t{size.width()} * size.height() > mostPicturePixels) {
        throw Error("is too large");
    }
    QImageReader::setAllocationLimit(mostMegabytes);
    QImage image;
    // Runs of a bitmap may leave pixels out, which would show what was in the memory before.
    if (format == "bmp" && QImageIOHandler::allocateImage(size, reader.imageFormat(), &image)) {
        image.fill(0);
    }
    // The decoder of JPEG makes up what is missing or damaged, and only says so.
    if (!reader.read(&image) || (format == "jpg" && !messages.first().empty())) {
        throw Error("cannot be read: " + (messages.first().empty()
                                              ? reader.errorString().toStdString()
                                              : messages.first()));
    }
    return toRaster(
        onWhite(format == "bmp" ? asBright(std::move(image), BmpHeader(bytes)) : image));
}

Raster QtPictureFiles::builtIn(const std::string& name) {
    const std::string resource = ":/pictures/" + name;
    QFile file(QString::fromStdString(resource));
    if (!file.open(QIODevice::ReadOnly)) {
        throw FileError(resource, "cannot be read: " + file.errorString().toStdString());
    }
    return read(file.readAll().toStdString());
}

std::string QtPictureFiles::encode(const Raster& picture, const std::string& format) {
    if (format == "bmp" && !picture.isEmpty()) {
        return bmpFile(picture);  // Qt's own would depend on the screen
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, QByteArray::fromStdString(format));
    QImage image = toImage(picture);
    // The file would else tell the resolution of this machine's screen.
    constexpr int dotsPerMeter = 3937;  // 100 to the inch
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    if (!writer.write(image)) {
        throw Error("the picture cannot be written: " + writer.errorString().toStdString());
    }
    return bytes.toStdString();
}

}  // namespace fleetwright
