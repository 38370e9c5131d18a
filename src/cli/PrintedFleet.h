#pragma once

#include "FleetFiles.h"
#include "FleetRow.h"
#include "KeptSheetParts.h"
#include "SheetsOnDemand.h"
#include "fleetDocument.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace fleetwright {

class SheetSupplies;
class ShipOnScreen;
struct Options;

/// A fleet that is to be a document: its sheets, drawn as its ships are loaded, and the file.
class PrintedFleet {
public:
    /// The ships of the fleet are in these files. What is handed in outlives this. Throws Error for
    /// a fleet that is too large for a document.
    PrintedFleet(const Options& options, const Fleet& fleet, const FleetFiles& files,
                 const SheetTools& tools, const CatalogueFile& catalogue);

    /// Draws the ship on a screen, of this file. Any number of threads may do so for different
    /// ones. Throws Error; then its ships have no sheets.
    void draw(std::size_t file, const ShipOnScreen& screen);
    /// Saves the document into a file. There is a row for each design of the fleet. Throws Error.
    void save(const std::filesystem::path& file, const FleetRows& rows) &&;

private:
    const Options& m_options;
    const Fleet& m_fleet;
    const FleetFiles& m_files;
    std::vector<std::vector<std::size_t>> m_shipsOf;  ///< of each file
    KeptSheetParts m_kept;
    SheetsOnDemand m_sheets;
    FleetSeries m_series;
};

}  // namespace fleetwright
