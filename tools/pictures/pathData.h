#pragma once

#include <QPainterPath>

#include <string>

namespace fleetwright {

/// A number as it stands in files of drawings: two decimals at the most, which is a two hundredth
/// of a pixel, and the same everywhere.
std::string shortNumber(double number);

/// SVG path data of M, L, C and Z alone.
std::string pathData(const QPainterPath& path);

}  // namespace fleetwright
