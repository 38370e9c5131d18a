#pragma once

#include "SheetPictures.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <vector>

namespace fleetwright {

/// The size of a system's picture, in pixels.
inline constexpr QSize systemSize(systemPictureSize, systemPictureSize);

/// SVG layers over each other in pure black on pure white, as an image of two colours: 0 is white
/// and 1 is black. A pixel is black if more than half of it is covered, so that curves and
/// slants stay clean without a grey between.
QImage drawInk(const std::vector<QByteArray>& layers, QSize size);

/// An SVG in its colours, smooth, on a transparent ground.
QImage drawColours(const QByteArray& svg, QSize size);

/// A white image of two colours, for what is drawn pixel by pixel.
QImage blankInk(QSize size);

/// The image in at most 256 colours of its own, dithered.
QImage inFewColours(const QImage& image);

}  // namespace fleetwright
