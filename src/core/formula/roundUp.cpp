#include "roundUp.h"

#include <cmath>

namespace fleetwright {

namespace {

/// Whether `x`, written with 15 significant digits, shows a fraction; `nearest` is the whole number
/// next to it. The text itself is not needed: with n digits in front of the point, the digits
/// behind it are all zeros just when `x` lies within half a unit of the (15 - n)th decimal place
/// of `nearest`. `x` never lies in the very middle, since that half unit is no binary fraction.
bool showsFraction(double x, double nearest) {
    const double magnitude = std::fabs(x);
    if (x == nearest || magnitude >= 1e14) {
        return false;  // from 15 digits in front of the point on, none is left behind it
    }
    if (nearest == 0.0) {
        return true;
    }
    double halfUnit = 0.5e-15;
    for (double limit = 1.0; magnitude >= limit; limit *= 10.0) {
        halfUnit *= 10.0;
    }
    return std::fabs(x - nearest) > halfUnit;
}

}  // namespace

double roundUpWhole(double x) {
    if (!std::isfinite(x)) {
        return x;
    }
    const double nearest = std::nearbyint(x);
    return showsFraction(x, nearest) ? std::trunc(x) + 1.0 : nearest;
}

}  // namespace fleetwright
