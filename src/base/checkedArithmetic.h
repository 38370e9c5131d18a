#pragma once

// Arithmetic on the whole-number fields of a design. A result that leaves the field's width is
// an OverflowError, never a wrap-around.

#include "Error.h"

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>

namespace fleetwright {

/// `value` in the narrower type `To`.
template <std::signed_integral To>
constexpr To narrow(std::int64_t value) {
    if (value < std::numeric_limits<To>::min() || value > std::numeric_limits<To>::max()) {
        throw OverflowError();
    }
    return static_cast<To>(value);
}

constexpr std::int32_t checkedAdd(std::int32_t a, std::int32_t b) {
    return narrow<std::int32_t>(std::int64_t{a} + b);
}

constexpr std::int32_t checkedSubtract(std::int32_t a, std::int32_t b) {
    return narrow<std::int32_t>(std::int64_t{a} - b);
}

constexpr std::int32_t checkedMultiply(std::int32_t a, std::int32_t b) {
    return narrow<std::int32_t>(std::int64_t{a} * b);
}

/// `value` rounded to the nearest whole number, ties to even.
inline std::int32_t roundToInt32(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
          rounded <= std::numeric_limits<std::int32_t>::max())) {
        throw OverflowError();
    }
    return static_cast<std::int32_t>(rounded);
}

}  // namespace fleetwright
