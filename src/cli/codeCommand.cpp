#include "commands.h"

#include "ShipOnScreen.h"
#include "console.h"
#include "designCode.h"

namespace fleetwright {

namespace {

int runCode(const Options& options) {
    return forEachShip(options, RefusedLines::AsComplaints,
                       [&options](std::size_t index, ShipOnScreen& screen) {
                           refuseFleet(options.words[index]);
                           return resultLine(designCode(screen.ship().shipFile()));
                       });
}

}  // namespace

extern const CommandRow codeCommand = {
    .name = "code",
    .words = "SHIP...",
    .least = 1,
    .most = CommandRow::any,
    .help = "Print ships as codes, one line each, for chats and mails",
    .details =
        "A code is \"FW1:\" and letters. It holds all that a ship file does, and every "
        "command takes it in the place of one. A file whose name begins like a code is named "
        "with its folder, as ./FW1:.shp.",
    .run = runCode,
};

}  // namespace fleetwright
