#pragma once

#include <array>

namespace fleetwright {

/// Those that a double holds exactly as whole numbers of up to 16 digits.
inline constexpr std::array<double, 16> powersOfTen = {
    1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

}  // namespace fleetwright
