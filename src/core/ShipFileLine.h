#pragma once

#include "Fault.h"

#include <optional>
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

/// Why a ship does not take the system in a line of its file.
enum class Refusal {
    UnknownSystem,
    CloakRule  ///< a merchant hull cannot have a cloak and other systems
};

/// The same for the author of the file.
std::string refusalText(Refusal why, std::string_view system);

/// A line of a ship file whose system the ship did not take.
struct RefusedLine {
    std::string text;    ///< the line as it stands in the file
    std::string system;  ///< the name in it
    Refusal why;
    Fault fault;
};

/// Cuts a line with `strTok`, whose memory on this thread it leaves changed. An empty `line`
/// becomes what the cutting before has left.
ShipFileLine cutShipFileLine(std::string& line);

/// A line of a ship file as this program writes it, or the beginning of one: "Ship Name: " and the
/// value. Any key but `Unknown` has a word.
std::string shipLine(ShipKey key, std::string_view value = {});

/// What the last line with this key says in the text of a ship file; nothing if there is none.
std::optional<std::string> valueIn(std::string_view shipFile, ShipKey key);

}  // namespace fleetwright
