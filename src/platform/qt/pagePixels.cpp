#include "pagePixels.h"

#include "drawPageShapes.h"
#include "qtImage.h"

#include <QPainter>

namespace fleetwright {

Raster pagePixels(const Page& page, double millimetres, int pixels) {
    QImage image(pixels, pixels, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const double scale = pixels / (millimetres * pageUnits);
    painter.scale(scale, scale);
    drawPageShapes(painter, page);
    painter.end();
    return toRaster(image);
}

}  // namespace fleetwright
