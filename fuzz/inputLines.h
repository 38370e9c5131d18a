#pragma once

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

namespace fleetwright {

/// The lines of an input, each up to its first NUL.
inline std::vector<std::string> inputLines(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    std::vector<std::string> lines;
    for (std::string line; std::getline(input, line);) {
        lines.emplace_back(line.c_str());
    }
    return lines;
}

}  // namespace fleetwright
