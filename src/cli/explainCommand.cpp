#include "commands.h"

#include "ShipOnScreen.h"
#include "explainShip.h"

namespace fleetwright {

namespace {

int runExplain(const Options& options) {
    return forEachShip(options, RefusedLines::AsComplaints, [](std::size_t, ShipOnScreen& screen) {
        std::string text = screen.ship().g_sShipName + '\n';
        for (const Explanation& explanation : explainShip(screen.ship())) {
            text += textOf(explanation);
        }
        return text;
    });
}

}  // namespace

extern const CommandRow explainCommand = {
    .name = "explain",
    .words = "SHIP...",
    .least = 1,
    .most = CommandRow::any,
    .help = "Say what cost, damage points and mass left are made of",
    .details = "Each has a line for each of its parts, and their sum.",
    .run = runExplain,
};

}  // namespace fleetwright
