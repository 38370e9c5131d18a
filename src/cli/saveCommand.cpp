#include "commands.h"

#include "ShipOnScreen.h"
#include "console.h"
#include "paths.h"
#include "saveResult.h"

namespace fleetwright {

namespace {

int runSave(const Options& options) {
    Options ship = options;
    ship.words.pop_back();
    std::string complaints;
    const int status =
        forEachShip(ship, RefusedLines::AsComplaints, [&](std::size_t, ShipOnScreen& screen) {
            std::string name = options.words.back();
            announceSave(nativePath(ShipClass::withExtension(name)));
            if (!screen.ship().saveShip(name)) {
                complaints = complaint(name, *screen.ship().fileFault());
            }
            return std::string();
        });
    if (complaints.empty()) {
        return status;
    }
    complain(complaints);
    return SomeRefused;
}

void checkSave(const Options& options) {
    if (options.words.back().empty()) {
        throw UsageError("save needs an OUT with a name");
    }
}

}  // namespace

extern const CommandRow saveCommand = {
    .name = "save",
    .words = "SHIP OUT",
    .least = 2,
    .most = 2,
    .help = "Load a ship and save it as OUT",
    .check = checkSave,
    .run = runSave,
};

}  // namespace fleetwright
