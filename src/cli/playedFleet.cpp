#include "playedFleet.h"

#include "Error.h"
#include "SheetSupplies.h"
#include "commands.h"
#include "console.h"
#include "fleetSheets.h"
#include "paths.h"
#include "playFleet.h"
#include "saveResult.h"

namespace fleetwright {

int savePlayedFleet(const Options& options, const Fleet& fleet, const std::filesystem::path& folder,
                    const std::filesystem::path& out) {
    checkCanBePlayed(fleet);
    int status = Done;
    SheetSupplies supplies(options, fleet.ships.size(), SheetSupplies::Kind::Lines, status);
    const auto refuse = [&status](const std::string& ship, const Error& why) {
        complain(complaint(nativePath(ship), why));
        status = SomeRefused;
    };
    const auto sheets =
        fleetSheets(fleet, folder, CatalogueFile::readOnce(options.appFolder / "weaps.dat"),
                    supplies.tools, refuse);
    saveResult(out, playPage(playFleet(fleet, sheets), supplies.tools.encoder));
    return status;
}

}  // namespace fleetwright
