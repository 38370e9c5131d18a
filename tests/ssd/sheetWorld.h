#pragma once

#include "SSDMap.h"
#include "SSDMaps.h"
#include "SheetImages.h"
#include "SheetLists.h"
#include "TemporaryFolder.h"
#include "testShip.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace fleetwright {

/// A map with this text, loaded.
SSDMap mapOf(std::string_view text);

/// Loads the maps of a folder; what is said of it, and then what is wrong with those that are
/// dropped, in lines.
std::string shownScan(const std::filesystem::path& folder, SSDMaps& maps, std::int16_t& largest);

/// A catalogue in which the name of a system is its arcs, "Hidden" and "Listed" are not painted,
/// and there is a "Damage Control Party".
extern const std::string_view arcCatalogue;

/// A picture of one colour.
Raster box(int width, int height, std::uint32_t colour);

/// A raster in letters: black '#', white '.', other colours a letter each.
std::string pictureOf(const Raster& raster);

}  // namespace fleetwright
