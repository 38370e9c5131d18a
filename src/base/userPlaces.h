#pragma once

// Where the system keeps what belongs to a user, and where this program is, one source a system.

#include <filesystem>

namespace fleetwright::userPlaces {

/// The folder for what users have made; no name of this program in it. Throws FileError.
std::filesystem::path data();
/// The folder for what can be made again at any time, likewise.
std::filesystem::path cache();
/// The executable that is running; empty if the system does not say.
std::filesystem::path executable();

}  // namespace fleetwright::userPlaces
