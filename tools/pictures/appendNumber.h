#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace fleetwright {

/// Appends a number of `size` bytes, the lowest first.
inline void appendNumber(std::string& bytes, std::size_t number, int size) {
    for (int i = 0; i < size; ++i) {
        bytes += static_cast<char>(static_cast<std::uint8_t>(number >> (8 * i)));
    }
}

}  // namespace fleetwright
