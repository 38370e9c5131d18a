#pragma once

#include <cstdint>
#include <string_view>

namespace fleetwright {

/// The broad class of a ship of this mass: "Escort" to "Supership".
std::string_view classOf(std::int32_t mass);

/// The designation of a ship of this mass: "Courier" to "SuperShip".
std::string_view designationOf(std::int32_t mass);

}  // namespace fleetwright
