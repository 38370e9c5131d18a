#pragma once

#include <filesystem>

namespace fleetwright {

class PictureDesktop;

/// Takes pictures of the window of fleets: with the delivered fleet, a ship of it selected, and
/// with one that breaks its limits and misses ships.
void takeFleets(PictureDesktop& desktop, const std::filesystem::path& appFolder,
                const std::filesystem::path& data);

}  // namespace fleetwright
