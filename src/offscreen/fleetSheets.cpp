#include "fleetSheets.h"

#include "Error.h"
#include "ShipOnScreen.h"
#include "drawnSheet.h"
#include "fleetPaths.h"
#include "fleetRows.h"

#include <map>
#include <memory>

namespace fleetwright {

FleetSheets
fleetSheets(const Fleet& fleet, const std::filesystem::path& folder, const CatalogueFile& catalogue,
            const SheetTools& tools,
            const std::function<void(const std::string& ship, const Error& why)>& refuse) {
    FleetSheets sheets;
    std::map<std::string, std::size_t> known;
    ShipOnScreen screen(tools.appFolder, catalogue);
    for (const FleetShip& ship : fleet.ships) {
        const std::string path = shipPath(folder, ship);
        const auto [first, isNew] = known.try_emplace(path, sheets.size());
        if (!isNew) {
            sheets.push_back(sheets[first->second]);
            continue;
        }
        std::shared_ptr<const VectorSheet>& sheet = sheets.emplace_back();
        if (!fleetRow(screen, path).figures) {
            continue;
        }
        try {
            sheet = std::make_shared<const VectorSheet>(recordedSheet(screen, tools, {}));
        } catch (const Error& error) {
            refuse(path, error);
        }
    }
    return sheets;
}

}  // namespace fleetwright
