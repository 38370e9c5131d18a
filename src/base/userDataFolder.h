#pragma once

#include <filesystem>

namespace fleetwright {

/// Where the program keeps what belongs to the user: the folder "FleetWright" in the desktop's
/// folder for such data, which is $XDG_DATA_HOME or else "~/.local/share". It need not exist yet.
/// Throws FileError if the user has no home.
std::filesystem::path userDataFolder();

}  // namespace fleetwright
