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

SSDMaps::Map SSDMaps::at(std::string_view displayName) const {
    const auto place = m_places.find(toCapitals(displayName));
    if (place == m_places.end()) {
        throw Error("there is no map " + quote(displayName));
    }
    return m_maps[place->second];
}

namespace {

std::vector<fs::path> mapFiles(const fs::path& appFolder) {
    try {
        return listFolder(appFolder / "maps", ".map");
    } catch (const Error&) {
        return {};
    }
}

}  // namespace

void scanMaps(const fs::path& appFolder, SSDMaps& g_colSSDMaps, std::int16_t& g_iLargestSSD,
              const std::function<void(const std::string&)>& showText) {
    constexpr std::size_t endingLength = 4;
    constexpr std::int16_t largest = capitalMass;
    for (const fs::path& file : mapFiles(appFolder)) {
        std::string name = pathText(file.filename());
        name.resize(name.size() - endingLength);
        const auto map = std::make_shared<SSDMap>(appFolder);
        try {
            map->ImageFile(name);
        } catch (const Error&) {
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
}

SSDMaps loadMaps(const std::filesystem::path& appFolder) {
    SSDMaps maps;
    std::int16_t largest = 0;
    scanMaps(appFolder, maps, largest, [](const std::string&) {});
    return maps;
}

std::vector<std::string> fittingMaps(const SSDMaps& maps, std::int32_t mass,
                                     std::int32_t iShipWeapCount) {
    std::vector<std::string> names;
    for (const SSDMaps::Map& map : maps.all()) {
        if (mass <= map->iMaxMass && iShipWeapCount <= map->iWeapNDX) {
            names.push_back(map->sDisplayName);
        }
    }
    return names;
}

}  // namespace fleetwright
