#include "QtPictureFiles.h"

#include "Error.h"
#include "bmpFile.h"
#include "qtImage.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

namespace fleetwright {

namespace {

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

Raster read(const QString& name, const std::filesystem::path& file) {
    QFile device(name);
    if (!device.open(QIODevice::ReadOnly)) {
        throw FileError(file, "cannot be read: " + device.errorString().toStdString());
    }
    QImageReader reader(&device);
    const QImage image = reader.read();
    if (image.isNull()) {
        throw FileError(file, "cannot be read: " + reader.errorString().toStdString());
    }
    return toRaster(onWhite(image));
}

}  // namespace

Raster QtPictureFiles::load(const std::filesystem::path& file) {
    return read(QString::fromStdString(file.string()), file);
}

Raster QtPictureFiles::builtIn(const std::string& name) {
    const std::string resource = ":/pictures/" + name;
    return read(QString::fromStdString(resource), resource);
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
