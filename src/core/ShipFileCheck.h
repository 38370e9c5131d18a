#pragma once

#include "Fault.h"
#include "ShipFileLine.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class ShipClass;

/// Something wrong with a design or its file, and what of the design it is about.
struct ShipFinding : Fault {
    ShipKey about = ShipKey::Unknown;
    std::string system = {};  ///< its name, where a system is at fault
};

/// Everything that is wrong with the text of a ship file, by line; what is wrong with the ship as
/// a whole comes last. `ship` is the loaded file; where it does not load, `loadFault` says why, and
/// of `ship` only the catalogue and the lines that it refused count.
std::vector<Fault> checkShipFile(std::string_view text, const ShipClass& ship,
                                 const std::optional<Fault>& loadFault);

/// The same, each with what it is about.
std::vector<ShipFinding> findInShipFile(std::string_view text, const ShipClass& ship,
                                        const std::optional<Fault>& loadFault);

/// The same of a ship as it is, whatever its file was. Nothing of it has a line.
std::vector<ShipFinding> findInDesign(const ShipClass& ship);

/// How much too heavy the systems of a ship are; empty if they are not.
std::string overloadText(const ShipClass& ship);

}  // namespace fleetwright
