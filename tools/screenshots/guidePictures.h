#pragma once

#include <filesystem>

namespace fleetwright {

class frmMain;

/// Builds the first ship of the player's guide in a new window, step by step as the guide has it,
/// and saves it in a folder.
void buildFirstShip(frmMain& window, const std::filesystem::path& folder);

}  // namespace fleetwright
