#include "Error.h"
#include "RecoveryFolder.h"
#include "ShipClass.h"
#include "commands.h"
#include "console.h"
#include "fleetFile.h"
#include "fleetName.h"
#include "fleetPaths.h"
#include "paths.h"
#include "readFile.h"
#include "saveResult.h"
#include "text.h"

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

/// A fleet put aside as it is in another file, from which it names the same ships.
std::string fleetFor(const fs::path& out, const fs::path& aside) {
    try {
        Fleet fleet = readFleet(aside).fleet;
        moveFleet(fleet, aside.parent_path(), out.parent_path());
        return fleetText(fleet);
    } catch (const FileError&) {
        return readBytes(aside);  // whatever it is, nothing of it is lost
    }
}

void writeOut(const RecoveryFolder::Design& design, const std::string& out) {
    if (design.about.kind == RecoveryKind::Ship) {
        saveResult(nativePath(ShipClass::withExtension(out)), readBytes(design.file));
        return;
    }
    const fs::path file = nativePath(isFleetName(out) ? out : out + fleetExtension);
    saveResult(file, fleetFor(file, design.file));
}

void checkRecovered(const Options& options) {
    if (options.words.size() == 1) {
        throw UsageError("recovered needs a NAME and an OUT");
    }
    if (!options.words.empty() && options.words.back().empty()) {
        throw UsageError("recovered needs an OUT with a name");
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
    for (const RecoveryFolder::Design& design : designs) {
        if (design.name == name) {
            writeOut(design, options.words.back());
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
