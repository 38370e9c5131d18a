#pragma once

#include "Drawing.h"

#include <QColor>
#include <QImage>

namespace fleetwright {

/// Whether there is nothing but black, white and greys on a drawing, as of ink on paper.
bool isInk(const Drawing& drawing);

/// A drawing in so many pixels and its own colours, without its paper.
QImage drawnImage(const Drawing& drawing, const QSize& size);

/// The same as ink of one colour on no paper: what is white lets through what is behind.
QImage inkOf(const Drawing& drawing, const QSize& size, const QColor& ink);
/// What is on a picture in greys.
QImage inkOf(const QImage& picture, const QColor& ink);

}  // namespace fleetwright
