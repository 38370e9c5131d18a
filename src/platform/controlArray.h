#pragma once

#include <array>
#include <cstddef>
#include <utility>

namespace fleetwright {

/// Makes an array of controls, which can be neither copied nor moved: `make` is called with each
/// index in turn and returns the control.
template <typename ControlType, std::size_t Size, typename Make>
std::array<ControlType, Size> controlArray(const Make& make) {
    return [&]<std::size_t... Index>(std::index_sequence<Index...>) {
        return std::array<ControlType, Size>{make(static_cast<int>(Index))...};
    }(std::make_index_sequence<Size>());
}

}  // namespace fleetwright
