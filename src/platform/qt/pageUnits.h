#pragma once

#include <cmath>

namespace fleetwright {

/// How many units of a painter that draws pages make a millimetre.
inline constexpr int pageUnits = 1000;

/// A length on a page, in whole units.
inline double toUnits(double millimetres) {
    return std::round(millimetres * pageUnits);
}

}  // namespace fleetwright
