#pragma once

#include <QBrush>
#include <QColor>
#include <QPainterPath>

#include <vector>

namespace fleetwright {

/// An area of one colour.
struct ColourBand {
    QPainterPath area;
    QColor colour;
};

/// A linear or radial gradient on an area as bands whose colours hardly differ from their
/// neighbours'. The later ones cover the earlier ones. The transformation leads from the gradient's
/// places to the area's.
std::vector<ColourBand> gradientBands(const QPainterPath& area, const QGradient& gradient,
                                      const QTransform& transform);

}  // namespace fleetwright
