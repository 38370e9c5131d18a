#include "commands.h"

#include "ShipOnScreen.h"

#include <cstdio>

namespace fleetwright {

int runSave(const Options& options) {
    std::string complaints;
    const int status =
        forEachShip(options, RefusedLines::AsComplaints, [&](std::size_t, ShipOnScreen& screen) {
            std::string name = options.saveName;
            if (!screen.ship().saveShip(name)) {
                complaints = complaint(name, *screen.ship().fileFault());
            }
            return std::string();
        });
    if (complaints.empty()) {
        return status;
    }
    std::fprintf(stderr, "%s\n", complaints.c_str());
    return SomeRefused;
}

}  // namespace fleetwright
