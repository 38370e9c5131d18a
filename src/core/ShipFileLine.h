#pragma once

#include <string>
#include <string_view>

namespace fleetwright {

/// What a line of a ship file is about.
enum class ShipKey {
    ShipName,
    DesignerName,
    Mass,
    Thrust,
    Type,
    Streamlining,
    Armor,
    Ftl,
    System,
    Unknown
};

/// A line of a ship file, cut but not yet understood.
struct ShipFileLine {
    ShipKey key = ShipKey::Unknown;
    std::string keyText;
    /// The value, without blanks at its ends: of an armor line the last character, of a system
    /// line the system's name.
    std::string value;
    /// Of a system line the amount.
    std::string amount;
};

/// Cuts a line with `strTok`. An empty `line` becomes what the cutting before has left.
ShipFileLine cutShipFileLine(std::string& line);

}  // namespace fleetwright
