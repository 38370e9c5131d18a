#include "QtPictureFiles.h"

#include "Error.h"

#include <QImage>
#include <QImageReader>

namespace fleetwright {

namespace {

Raster toRaster(const QImage& image) {
    Raster raster(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            raster.pixel(x, y) = image.pixel(x, y) & 0xFFFFFFU;
        }
    }
    return raster;
}

Raster read(const QString& name, const std::filesystem::path& file) {
    QImageReader reader(name);
    const QImage image = reader.read();
    if (image.isNull()) {
        throw FileError(file, "cannot be read: " + reader.errorString().toStdString());
    }
    return toRaster(image);
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
