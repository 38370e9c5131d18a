#pragma once

// Faults of ship files that more than one reader finds, in the words of all of them.

#include "Fault.h"
#include "text.h"

#include <string>
#include <string_view>

namespace fleetwright {

inline std::string unknownSystem(std::string_view name) {
    return "unknown system " + quote(name);
}

inline constexpr std::string_view cloakRule =
    "a merchant hull cannot have a cloak and other systems";

}  // namespace fleetwright
