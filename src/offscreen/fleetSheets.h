#pragma once

#include "CatalogueFile.h"
#include "Fleet.h"
#include "fleetDocument.h"

#include <filesystem>
#include <functional>
#include <string>

namespace fleetwright {

class Error;
struct SheetTools;

/// The sheets of the ships of a fleet in this folder, on the maps that fit them best, one for each
/// `FleetShip`; null for one that does not load. Null, too, for one of which there can be no
/// sheet: then `refuse` hears why. Each ship is loaded once, with a catalogue that is to be one
/// that is read once. Throws FileError when the catalogue cannot be used.
FleetSheets
fleetSheets(const Fleet& fleet, const std::filesystem::path& folder, const CatalogueFile& catalogue,
            const SheetTools& tools,
            const std::function<void(const std::string& ship, const Error& why)>& refuse);

}  // namespace fleetwright
