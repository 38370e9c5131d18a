#pragma once

// Figures of ships as JSON, by the keys that docs/file-formats.md lists.

#include <nlohmann/json.hpp>

#include <string>

namespace fleetwright {

class ShipClass;

/// An object whose keys keep their order.
using Json = nlohmann::ordered_json;

/// Cost, damage points and so on to the name of the size.
Json figuresJson(const ShipClass& ship);

/// The systems aboard: name, amount, and mass and cost of all pieces together.
Json systemsJson(ShipClass& ship);

/// JSON of which all characters do nothing but show: others stand in its texts as \u and their
/// number. What is no UTF-8, as names of files can be, is replaced. On one line, or with so many
/// blanks for each level.
std::string jsonText(const Json& json, int indent = -1);

}  // namespace fleetwright
