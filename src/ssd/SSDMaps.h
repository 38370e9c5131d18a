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
    bool contains(std::string_view displayName) const;
    /// The map of this name. Throws Error if there is none.
    Map at(std::string_view displayName) const;
    const std::vector<Map>& all() const { return m_maps; }

private:
    std::vector<Map> m_maps;
    std::map<std::string, std::size_t> m_places;  // by name in capitals
};

/// A map that cannot be read or understood, or the folder of maps if that cannot be listed.
struct DroppedMap {
    std::filesystem::path file;
    Fault fault;
};

/// Reads all map files of the application folder, by name without regard to case, and returns those
/// that it drops. `g_iLargestSSD` is raised to the largest mass that any of the others serves, but
/// to no more than 100. `showText` hears of each map that was read.
std::vector<DroppedMap> scanMaps(const std::filesystem::path& appFolder, SSDMaps& g_colSSDMaps,
                                 std::int16_t& g_iLargestSSD,
                                 const std::function<void(const std::string&)>& showText);

/// What that scan finds.
struct LoadedMaps {
    SSDMaps maps;
    std::int16_t g_iLargestSSD = 0;
    std::vector<DroppedMap> dropped;

    /// The map of this name if it is one of those, and no other of the name is there; else null.
    const DroppedMap* whyDropped(std::string_view displayName) const;
};
LoadedMaps loadMaps(const std::filesystem::path& appFolder);

/// Whether ships of this mass get sheets at all: none is heavier than what the scan has found.
constexpr bool getsSheet(std::int32_t mass, std::int16_t g_iLargestSSD) {
    return mass <= g_iLargestSSD;
}

/// Whether a ship fits on a map: of this mass, and with so many systems besides damage control
/// parties.
bool fitsOn(const SSDMap& map, std::int32_t mass, std::int32_t iShipWeapCount);

/// The names of the maps that such a ship fits on.
std::vector<std::string> fittingMaps(const SSDMaps& maps, std::int32_t mass,
                                     std::int32_t iShipWeapCount);

}  // namespace fleetwright
