#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// What a ship file says of itself, without being loaded.
struct WrittenShip {
    std::string name;
    std::optional<std::int32_t> mass;
    /// It has all lines that each file of this program's has, and nothing is missing at the end of
    /// its last one.
    bool isWhole = false;

    static WrittenShip of(std::string_view shipFile);
};

}  // namespace fleetwright
