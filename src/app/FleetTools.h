#pragma once

#include "CatalogueFile.h"
#include "FleetRow.h"

#include <filesystem>
#include <memory>
#include <string>

namespace fleetwright {

class CatalogueText;
class ShipOnScreen;

/// What the window of fleets learns of ships: from a main window that nobody sees, so that no
/// figure can differ from the one on the screen.
class FleetTools {
public:
    FleetTools(std::filesystem::path appFolder, CatalogueFile catalogue);
    FleetTools(const FleetTools&) = delete;
    FleetTools& operator=(const FleetTools&) = delete;
    ~FleetTools();

    /// What is now in a ship file, a sheet or a code.
    FleetRow readShip(const std::string& ship);
    /// The fingerprint of the catalogue; empty if it cannot be read.
    std::string catalogue();

private:
    std::filesystem::path m_appFolder;
    CatalogueFile m_catalogue;
    std::shared_ptr<const CatalogueText> m_known;  ///< the catalogue that has this
    std::string m_fingerprint;
    std::unique_ptr<ShipOnScreen> m_screen;  ///< once it is needed
};

}  // namespace fleetwright
