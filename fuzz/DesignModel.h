#pragma once

#include "ShipClass.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// What a design is made of, kept beside a ship by someone who knows what its acts are to do and
/// works no figure out.
struct DesignModel {
    HullDesign hull;
    std::vector<std::int64_t> amounts;  ///< by record
    bool isAutoMass = false;

    /// The design of a ship as it is.
    static DesignModel of(const ShipClass& ship);

    /// The figures of a new ship of this design, and nothing if they leave their fields.
    std::optional<std::string> figures(const ShipServices& services) const;

    /// Whether a system is refused, by the record that has the cloak.
    bool cloakRuleRefuses(std::string_view name, std::size_t cloak) const;

    /// Whether a ship file has words for all of it.
    bool hasWords() const;
};

/// The design in words.
std::string textOf(const DesignModel& design);

}  // namespace fleetwright
