#include "QtPictureFiles.h"

#include "Error.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QPainter>

namespace fleetwright {

namespace {

/// An image as it looks on white paper, pixel by pixel whatever resolution it is meant for.
QImage onWhite(QImage image) {
    QImage paper(image.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    image.setDevicePixelRatio(1);
    QPainter(&paper).drawImage(0, 0, image);
    return paper;
}

Raster toRaster(const QImage& image) {
    constexpr QRgb colour = 0xFFFFFF;
    Raster raster(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            raster.pixel(x, y) = row[x] & colour;
        }
    }
    return raster;
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

}  // namespace fleetwright
