#pragma once

#include "SSDMap.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// The loaded maps in the order in which they came, found by their display names without regard
/// to case. Nothing is ever taken out.
class SSDMaps {
public:
    using Map = std::shared_ptr<const SSDMap>;

    /// Adds a map under its display name. Throws Error if there is one of that name.
    void add(Map map);
    /// The map of this name. Throws Error if there is none.
    Map at(std::string_view displayName) const;
    const std::vector<Map>& all() const { return m_maps; }

private:
    std::vector<Map> m_maps;
    std::map<std::string, std::size_t> m_places;  // by name in capitals
};

/// Reads all map files of the application folder, by name without regard to case. Files that do
/// not load are passed over without a word. `g_iLargestSSD` is raised to the largest mass that any
/// of them serves, but to no more than 100. `showText` hears of each map that was read.
void scanMaps(const std::filesystem::path& appFolder, SSDMaps& g_colSSDMaps,
              std::int16_t& g_iLargestSSD, const std::function<void(const std::string&)>& showText);

/// The maps as that scan finds them.
SSDMaps loadMaps(const std::filesystem::path& appFolder);

/// The names of the maps that a ship fits on: of this mass, and with so many systems besides
/// damage control parties.
std::vector<std::string> fittingMaps(const SSDMaps& maps, std::int32_t mass,
                                     std::int32_t iShipWeapCount);

}  // namespace fleetwright
