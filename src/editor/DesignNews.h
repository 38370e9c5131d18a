#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace fleetwright {

class ShipClass;

/// What has become of a design, in words for who cannot see the figures change.
class DesignNews {
public:
    /// The step that was done, if there was one, and the figures that are others than the last time
    /// that this was asked: "1 x Guard Gun (All), Mass Left 4, Cost 110". The first time there are
    /// none, and where nothing is new the text is empty.
    std::string sinceLastTime(const ShipClass& ship, const std::string& step);

private:
    std::optional<std::array<std::int32_t, 4>> m_figures;
};

}  // namespace fleetwright
