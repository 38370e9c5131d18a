#pragma once

#include "Fault.h"
#include "Fleet.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class ShipClass;

/// What a fleet wants to know of a ship.
struct ShipFigures {
    std::string name;
    std::string designer;
    std::string hull;              ///< "Warship" and so on
    std::string_view shipClass;    ///< "Escort" to "Supership"
    std::string_view designation;  ///< "Courier" to "SuperShip"
    std::int32_t mass = 0;
    std::int32_t points = 0;
    std::int32_t damagePoints = 0;
    std::int32_t damageRows = 0;
    std::int32_t thrust = 0;
    std::int32_t ftl = 0;         ///< an FtlDrive
    std::int32_t armor = 0;       ///< level
    std::int32_t streamline = 0;  ///< level
    std::int32_t massLeft = 0;    ///< negative when overloaded

    friend bool operator==(const ShipFigures&, const ShipFigures&) = default;
};

/// The figures of a ship as they are now.
ShipFigures shipFigures(const ShipClass& ship);

/// What has become of a ship of a fleet: what it is now, or why it does not load. Small, so that a
/// fleet of thousands can have one for each while no ship stays.
struct FleetRow {
    std::optional<ShipFigures> figures;  ///< none if the ship does not load
    /// Why it does not load; of one that does, the lines that it has not taken.
    std::vector<Fault> faults;
    std::string fingerprint;  ///< of the ship's text now; empty if it cannot be read

    friend bool operator==(const FleetRow&, const FleetRow&) = default;
};

/// A row for each ship of a fleet, in their order; null while it is not known. The ships of one
/// file can share one.
using FleetRows = std::vector<std::shared_ptr<const FleetRow>>;

/// Whether a ship is another than when the fleet was written.
bool hasChanged(const FleetShip& ship, const FleetRow& row);

}  // namespace fleetwright
