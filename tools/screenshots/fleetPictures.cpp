#include "fleetPictures.h"

#include "PictureDesktop.h"
#include "QtClock.h"
#include "QtTrash.h"
#include "RecoveryFolder.h"
#include "ShipOnScreen.h"
#include "fingerprint.h"
#include "fleetRows.h"
#include "frmFleet.h"
#include "readFile.h"
#include "saveFile.h"

#include <QMenu>

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

/// Takes a picture of the window with a fleet, all of whose ships have been read.
void takeFleet(PictureDesktop& desktop, const FleetServices& services, const fs::path& fleet,
               const std::string& name) {
    frmFleet form(services);
    form.bringUp();
    const std::unique_ptr<FormWindow> window = desktop.windowOf(form);
    form.openFleet(fleet.string());
    while (form.tmrLook.isEnabled()) {
        form.tmrLook.tick();
    }
    form.ships.lvShips.select(3);
    desktop.take(*window, name);
    for (const char* const menu : {"mnuFleetFile", "mnuFleetEdit", "mnuShips"}) {
        auto* const shown = window->findChild<QMenu*>(menu);
        shown->resize(shown->sizeHint());
        desktop.take(*shown, name + '-' + menu);
    }
}

/// The delivered fleet, but under tighter limits, with a ship that has changed, one that is no more
/// and a code that is damaged.
std::string brokenFleet(const fs::path& delivered) {
    std::string text = readTextFile(delivered);
    const auto replace = [&text](const std::string& what, const std::string& with) {
        text.replace(text.find(what), what.size(), with);
    };
    replace("points limit = 1000", "points limit = 900");
    replace("Cruiser: 2 ships", "Cruiser: 1 ship");
    replace("283-18305320773016999306", "1-1");
    return text + "\nship = ../ships/Sunken.shp\ncount = 2\n\nship = FW1:torn\n";
}

}  // namespace

void takeFleets(PictureDesktop& desktop, const fs::path& appFolder, const fs::path& data) {
    QtClock clock;
    ShipOnScreen screen(appFolder);
    QtTrash trash;
    RecoveryFolder recovery(appFolder / "recovered", [] { return std::string(); }, trash);
    const bool confirmsExit = false;
    const FleetServices services{
        .appFolder = appFolder,
        .desktop = desktop,
        .clock = clock,
        .confirmsExit = confirmsExit,
        .recovery = recovery,
        .canReadShips = [] { return true; },
        .readShip = [&screen](const std::string& ship) { return fleetRow(screen, ship); },
        .catalogue = [&] { return fingerprint(readTextFile(appFolder / "weaps.dat")); },
        .shipAtHand = {},
        .openShip = {},
        .sheets = {},
        .pages = {},
        .playPage = {}};
    takeFleet(desktop, services, data / "fleets" / "Autumn-Patrol.fleet", "fleet");
    const fs::path folder = appFolder / "fleets";
    fs::create_directories(folder);
    if (!fs::exists(appFolder / "ships")) {
        fs::create_directory_symlink(fs::absolute(data) / "ships", appFolder / "ships");
    }
    saveFile(folder / "Broken.fleet", brokenFleet(data / "fleets" / "Autumn-Patrol.fleet"));
    takeFleet(desktop, services, folder / "Broken.fleet", "fleet-broken");
}

}  // namespace fleetwright
