#include "RecoveryFolder.h"
#include "ShipClass.h"
#include "commands.h"
#include "console.h"
#include "paths.h"
#include "readFile.h"
#include "saveResult.h"

namespace fleetwright {

namespace {

void checkRecovered(const Options& options) {
    if (options.words.size() == 1) {
        throw UsageError("recovered needs a NAME and an OUT");
    }
}

int runRecovered(const Options& options) {
    const std::vector<RecoveryFolder::Design> designs =
        RecoveryFolder::list(RecoveryFolder::ofUser());
    if (options.words.empty()) {
        for (const RecoveryFolder::Design& design : designs) {
            printResults(resultLine(design.name));
        }
        return Done;
    }
    const std::string& name = options.words.front();
    const std::string& out = options.words.back();
    for (const RecoveryFolder::Design& design : designs) {
        if (design.name == name) {
            const bool isFleet = design.about.kind == RecoveryKind::Fleet;
            saveResult(nativePath(isFleet ? out : ShipClass::withExtension(out)),
                       readBytes(design.file));
            return Done;
        }
    }
    complain(complaint(name, {0, "no design of this name was put aside"}));
    return SomeRefused;
}

}  // namespace

extern const CommandRow recoveredCommand = {
    .name = "recovered",
    .words = "[NAME OUT]",
    .most = 2,
    .help = "List designs that were put aside, or write one as OUT",
    .details = "Designs are put aside because they were never saved; the newest is listed first. "
               "OUT is a ship file, or a fleet file.",
    .check = checkRecovered,
    .run = runRecovered,
};

}  // namespace fleetwright
