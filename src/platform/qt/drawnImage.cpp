#include "drawnImage.h"

#include "drawShapes.h"
#include "pageUnits.h"

#include <QPainter>

#include <algorithm>

namespace fleetwright {

namespace {

bool isGrey(const std::optional<std::uint32_t>& colour) {
    return !colour || (qRed(*colour) == qGreen(*colour) && qGreen(*colour) == qBlue(*colour));
}

QImage imageOn(const QColor& ground, const Drawing& drawing, const QSize& size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(size.width()) / drawing.width / pageUnits,
                  double(size.height()) / drawing.height / pageUnits);
    drawShapes(painter, drawing, {0, 0, double(drawing.width), double(drawing.height)});
    return image;
}

}  // namespace

bool isInk(const Drawing& drawing) {
    return std::ranges::all_of(drawing.shapes, [](const DrawnShape& shape) {
        return isGrey(shape.fill) && isGrey(shape.stroke);
    });
}

QImage drawnImage(const Drawing& drawing, const QSize& size) {
    return imageOn(Qt::transparent, drawing, size);
}

QImage inkOf(const Drawing& drawing, const QSize& size, const QColor& ink) {
    return inkOf(imageOn(Qt::white, drawing, size), ink);
}

QImage inkOf(const QImage& picture, const QColor& ink) {
    QImage cover = picture.convertToFormat(QImage::Format_Grayscale8);
    cover.invertPixels();
    QImage image(picture.size(), QImage::Format_ARGB32);
    image.fill(ink);
    image.setAlphaChannel(cover);
    return image;
}

}  // namespace fleetwright
