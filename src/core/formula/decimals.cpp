#include "decimals.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

namespace fleetwright {

namespace {

/// Those that numbers of up to 15 digits need.
constexpr std::array<double, 15> powersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};

/// Half a unit of the 15th significant digit, by the number of digits in front of the point.
constexpr std::array<double, 15> halfUnits = {5e-16, 5e-15, 5e-14, 5e-13, 5e-12, 5e-11, 5e-10, 5e-9,
                                              5e-8,  5e-7,  5e-6,  5e-5,  5e-4,  5e-3,  5e-2};

constexpr bool isDecimalDigit(char c) {
    return c >= '0' && c <= '9';
}

/// A number of more digits than a double holds exactly, which is between `begin` and `end`.
double longNumber(const char* begin, const char* end) {
    double value = 0.0;
    const auto result = std::from_chars(begin, end, value, std::chars_format::fixed);
    if (result.ec == std::errc::result_out_of_range) {
        const bool isHuge =
            std::any_of(begin, std::find(begin, end, '.'), [](char digit) { return digit != '0'; });
        value = isHuge ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return value;
}

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

double readDecimal(const char*& place) {
    const char* at = place;
    std::uint64_t digits = 0;
    int count = 0;
    for (; isDecimalDigit(*at); ++at, ++count) {
        digits = digits * 10 + static_cast<unsigned>(*at - '0');
    }
    const int whole = count;
    if (*at == '.' && isDecimalDigit(at[1])) {
        for (++at; isDecimalDigit(*at); ++at, ++count) {
            digits = digits * 10 + static_cast<unsigned>(*at - '0');
        }
    }
    const char* const begin = std::exchange(place, at);
    // Up to 15 digits both the digits and the power of ten are exact, and so is their quotient
    // but for its one rounding.
    if (count > 15) {
        return longNumber(begin, at);
    }
    return static_cast<double>(digits) / powersOfTen[static_cast<std::size_t>(count - whole)];
}

double roundUpWhole(double x) {
    if (!std::isfinite(x)) {
        return x;
    }
    const double nearest = std::nearbyint(x);
    return showsFraction(x, nearest) ? std::trunc(x) + 1.0 : nearest;
}

}  // namespace fleetwright
