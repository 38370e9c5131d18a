#pragma once

#include "text.h"

#include <string_view>

namespace fleetwright {

/// What fleet files are called.
inline constexpr const char* fleetExtension = ".fleet";

/// Whether a file of this name is one of a fleet.
inline bool isFleetName(std::string_view name) {
    return toSmallLetters(name).ends_with(fleetExtension);
}

}  // namespace fleetwright
