#pragma once

#include "CatalogueFile.h"
#include "Fleet.h"
#include "FleetRow.h"
#include "PagePrinter.h"
#include "fleetDocument.h"

#include <filesystem>
#include <memory>
#include <string>

namespace fleetwright {

class CatalogueText;
class Drawings;
class PictureEncoder;
class PictureFiles;
class ShipOnScreen;
struct Globals;

/// What the window of fleets learns of ships: from a main window that nobody sees, so that no
/// figure and no sheet can differ from what is on the screen.
class FleetTools {
public:
    /// What that takes of the program. All of it outlives this.
    struct Services {
        std::filesystem::path appFolder;
        CatalogueFile catalogue;
        PictureFiles& pictures;
        PictureEncoder& encoder;
        const Drawings& drawings;
        const Globals& globals;
    };

    explicit FleetTools(Services services);
    FleetTools(const FleetTools&) = delete;
    FleetTools& operator=(const FleetTools&) = delete;
    ~FleetTools();

    /// What is now in a ship file, a sheet or a code.
    FleetRow readShip(const std::string& ship);
    /// The fingerprint of the catalogue; empty if it cannot be read.
    std::string catalogue();
    /// The roster of a fleet whose ships lie in and below a folder, and its sheets, each as often
    /// as the fleet has the ship. What is returned does not outlive this, nor do its documents
    /// outlive it; it draws the sheets when it is first asked, and throws Error.
    PagePrinter::Layout pages(const Fleet& fleet, const FleetRows& rows,
                              const std::filesystem::path& folder);
    /// The page by which such a fleet is played. Throws Error.
    std::string playPage(const Fleet& fleet, const std::filesystem::path& folder);
    /// The ships that load and of which the last of both has no sheet all the same, with the
    /// reason; empty if there are none.
    const std::string& leftOut() const { return m_leftOut; }

private:
    ShipOnScreen& screen();
    FleetSheets sheets(const Fleet& fleet, const std::filesystem::path& folder);

    Services m_services;
    std::shared_ptr<const CatalogueText> m_known;  ///< the catalogue that has this
    std::string m_fingerprint;
    std::string m_leftOut;
    std::unique_ptr<ShipOnScreen> m_screen;  ///< once it is needed
};

}  // namespace fleetwright
