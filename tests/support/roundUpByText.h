#pragma once

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace fleetwright {

/// Rounding up as its rule says it: a number has a fraction if its 15 digits as they are printed
/// have one. What is not finite stays what it is.
inline double roundUpByText(double x) {
    if (!std::isfinite(x)) {
        return x;
    }
    char text[40];
    std::snprintf(text, sizeof text, "%.14e", std::fabs(x));  // one digit before the point
    const std::string printed(text);
    const std::string digits = printed[0] + printed.substr(2, 14);
    const int whole = std::max(std::atoi(printed.c_str() + printed.find('e') + 1) + 1, 0);
    const bool hasFraction =
        digits.find_first_not_of('0', static_cast<std::size_t>(whole)) != std::string::npos;
    return hasFraction ? std::trunc(x) + 1 : std::nearbyint(x);
}

}  // namespace fleetwright
