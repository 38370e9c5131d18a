#pragma once

// Ship files as JSON and back; docs/ship.schema.json and docs/file-formats.md describe it.

#include "FaultError.h"
#include "ShipDesign.h"

#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class ShipClass;

/// One ship as a JSON object over several lines, without a line end behind it: its design, and its
/// figures for readers. `file` names the ship file or the sheet that it comes from;
/// nothing where there is none. Throws
/// OverflowError where a system's mass or cost does not fit.
std::string shipJson(ShipClass& ship, std::string_view file);

/// Objects of ships as one JSON array, likewise.
std::string arrayOfShips(const std::vector<std::string>& ships);

/// A ship in a JSON text.
struct JsonShip {
    ShipDesign design;
    /// The name of its file, without folder and ending; empty if it tells none. It comes from
    /// others and can be any text.
    std::string file;
    int line = 0;                  ///< where it begins
    std::vector<int> systemLines;  ///< where each of its systems begins

    /// The line that a line of `shipFileOf(design)` comes from.
    int lineOf(int shipFileLine) const;
};

/// The ship or the ships of a JSON text. Figures are passed over. Throws FaultError for what is no
/// JSON, does not keep to the schema, or has a text that no ship file can hold.
std::vector<JsonShip> shipsInJson(const std::string& json);

}  // namespace fleetwright
