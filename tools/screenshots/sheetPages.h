#pragma once

#include <filesystem>

namespace fleetwright {

/// Draws the sheets of all sample ships: bitmaps into the folder "sheets" of the output, pages into
/// "pages", and all pages on one picture, "sheet-pages.png". Throws Error.
void drawSheets(const std::filesystem::path& appFolder, const std::filesystem::path& ships,
                const std::filesystem::path& output);

}  // namespace fleetwright
