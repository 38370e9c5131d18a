#include "SSDMaps.h"

#include "HullRules.h"
#include "paths.h"
#include "text.h"

#include <algorithm>

namespace fleetwright {

namespace fs = std::filesystem;

void SSDMaps::add(Map map) {
    const bool isNew = m_places.try_emplace(toCapitals(map->sDisplayName), m_maps.size()).second;
    if (!isNew) {
        throw Error("there is a map " + quote(map->sDisplayName) + " already");
    }
    m_maps.push_back(std::move(map));
}

bool SSDMaps::contains(std::string_view displayName) const {
    return m_places.contains(toCapitals(displayName));
}

SSDMaps::Map SSDMaps::at(std::string_view displayName) const {
    const auto place = m_places.find(toCapitals(displayName));
    if (place == m_places.end()) {
        throw Error("there is no map " + quote(displayName));
    }
    return m_maps[place->second];
}

std::vector<DroppedMap> scanMaps(const fs::path& appFolder, SSDMaps& g_colSSDMaps,
                                 std::int16_t& g_iLargestSSD,
                                 const std::function<void(const std::string&)>& showText) {
    constexpr std::size_t endingLength = 4;
    constexpr std::int16_t largest = capitalMass;
    std::vector<fs::path> files;
    std::vector<DroppedMap> dropped;
    try {
        files = listFolder(appFolder / "maps", ".map");
    } catch (const FileError& error) {
        dropped.push_back({error.file(), {0, error.what()}});
    }
    for (const fs::path& file : files) {
        std::string name = pathText(file.filename());
        name.resize(name.size() - endingLength);
        const auto map = std::make_shared<SSDMap>(appFolder);
        try {
            map->ImageFile(name);
        } catch (const Error&) {
            dropped.push_back({file, map->fileFault().value()});
            continue;
        }
        try {
            g_colSSDMaps.add(map);
        } catch (const Error&) {
            // Its name differs from an earlier one only in case. It counts all the same.
        }
        showText("Adding SSD Map: " + map->sDisplayName);
        g_iLargestSSD = std::max(g_iLargestSSD, map->iMaxMass);
    }
    g_iLargestSSD = std::min(g_iLargestSSD, largest);
    return dropped;
}

LoadedMaps loadMaps(const std::filesystem::path& appFolder) {
    LoadedMaps loaded;
    loaded.dropped =
        scanMaps(appFolder, loaded.maps, loaded.g_iLargestSSD, [](const std::string&) {});
    return loaded;
}

const DroppedMap* LoadedMaps::whyDropped(std::string_view displayName) const {
    const std::string wanted = toCapitals(displayName);
    if (maps.contains(displayName)) {
        return nullptr;
    }
    const auto found = std::find_if(dropped.begin(), dropped.end(), [&](const DroppedMap& map) {
        return toCapitals(pathText(map.file.stem())) == wanted;
    });
    return found == dropped.end() ? nullptr : &*found;
}

bool fitsOn(const SSDMap& map, std::int32_t mass, std::int32_t iShipWeapCount) {
    return mass <= map.iMaxMass && iShipWeapCount <= map.iWeapNDX;
}

std::vector<std::string> fittingMaps(const SSDMaps& maps, std::int32_t mass,
                                     std::int32_t iShipWeapCount) {
    std::vector<std::string> names;
    for (const SSDMaps::Map& map : maps.all()) {
        if (fitsOn(*map, mass, iShipWeapCount)) {
            names.push_back(map->sDisplayName);
        }
    }
    return names;
}

}  // namespace fleetwright
