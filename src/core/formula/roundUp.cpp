#include "roundUp.h"

#include "powersOfTen.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace fleetwright {

namespace {

/// Half a unit of the 15th significant digit, by the number of digits in front of the point.
constexpr std::array<double, 15> halfUnits = {5e-16, 5e-15, 5e-14, 5e-13, 5e-12, 5e-11, 5e-10, 5e-9,
                                              5e-8,  5e-7,  5e-6,  5e-5,  5e-4,  5e-3,  5e-2};

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
    std::size_t digits = 0;
    while (magnitude >= powersOfTen[digits]) {
        ++digits;
    }
    return std::fabs(x - nearest) > halfUnits[digits];
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
