#include "qtImage.h"

#include <algorithm>

namespace fleetwright {

Raster toRaster(const QImage& image) {
    constexpr QRgb colour = 0xFFFFFFU;
    const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
    Raster raster(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        std::transform(line, line + image.width(), raster.row(y).begin(),
                       [](QRgb pixel) { return pixel & colour; });
    }
    return raster;
}

QImage toImage(const Raster& raster) {
    return toImage(raster, {0, 0, raster.width(), raster.height()});
}

QImage toImage(const Raster& raster, const QRect& part) {
    constexpr QRgb opaque = 0xFF000000U;
    QImage image(part.width(), part.height(), QImage::Format_RGB32);
    for (int y = 0; y < part.height(); ++y) {
        const auto row = raster.row(part.top() + y).subspan(static_cast<std::size_t>(part.left()));
        std::transform(row.begin(), row.begin() + part.width(),
                       reinterpret_cast<QRgb*>(image.scanLine(y)),
                       [](std::uint32_t pixel) { return opaque | pixel; });
    }
    return image;
}

}  // namespace fleetwright
