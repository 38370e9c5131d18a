#pragma once

#include <string_view>

namespace fleetwright {

/// Goes through a PNG file as its decoder will, to its end. What that finds wrong it would print;
/// this throws Error.
void checkPng(std::string_view bytes);

}  // namespace fleetwright
