#pragma once

// Where the ships of a fleet lie.

#include "Fleet.h"

#include <filesystem>
#include <string>

namespace fleetwright {

/// The file of a ship of a fleet in this folder, to be loaded, or the code that it is; empty
/// if it names none. A fleet comes from anybody and may name any file: it is only ever to be read,
/// as a ship.
std::string shipPath(const std::filesystem::path& fleetFolder, const FleetShip& ship);

/// How a fleet in this folder names a ship file. Throws FileError for a name that is no text, or
/// one of several lines.
std::string fileInFleet(const std::filesystem::path& fleetFolder,
                        const std::filesystem::path& shipFile);

/// Has a fleet that goes from one folder into another name the same ships as before. In its own
/// folder it stays as it is.
void moveFleet(Fleet& fleet, const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace fleetwright
