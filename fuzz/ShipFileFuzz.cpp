// The ship file. An input is its bytes.

#include "Error.h"
#include "ShipFileCheck.h"
#include "files.h"
#include "require.h"
#include "testShip.h"
#include "text.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

using namespace fleetwright;

namespace {

/// All that a ship holds but its files, so that two states can be compared as texts.
std::string describe(const ShipClass& ship) {
    return ship.shipFile() + figures(ship);
}

int lineCount(std::string_view text) {
    LineReader lines(text);
    for (std::string_view line; lines.next(line);) {
    }
    return lines.lineNumber();
}

void checkFaults(const std::string& text, const ShipClass& ship, bool isLoaded) {
    require(isLoaded == !ship.fileFault(), "a load fails with a fault, and only then");
    const int lines = lineCount(text);
    for (const RefusedLine& refused : ship.refusedLines()) {
        require(refused.fault.line >= 1 && refused.fault.line <= lines &&
                    refused.text.starts_with("System:"),
                "a refused line is a line of the file");
    }
    const std::vector<Fault> faults = checkShipFile(text, ship, ship.fileFault());
    requireInOrder(faults, lines);
    require(!faults.empty() || (isLoaded && ship.refusedLines().empty()),
            "what the load does not take is a fault of the file");
    require(!faults.empty() ||
                std::ranges::none_of(ship.state().amounts,
                                     [](const auto& each) { return each.second < 0; }),
            "a file without faults has no amounts below 0");
}

/// What was loaded, brought in order as the window does, can be shown, saved and loaded again.
void checkRoundTrip(ShipClass& ship, const ShipServices& services, const TemporaryFolder& folder) {
    if (isBase(ship.Hull())) {
        ship.FTL(NoDrive);
        ship.THRUST(0);
        ship.Streamline(0);
    }
    ship.mass(ship.mass());  // would throw where a figure does not fit

    std::string file = (folder.path() / "saved.shp").string();
    require(ship.saveShip(file) && ship.g_bSaved, "a ship can be saved");
    requireSame(folder.read("saved.shp"), ship.shipFile(), "the file holds the design");
    ShipClass again(services);
    if (!again.loadShip(file)) {
        // Only where the first few systems leave 32 bits, and all of them together do not.
        require(again.fileFault()->text == OverflowError().what(), "what was saved loads");
        return;
    }
    again.weapChange();
    if (again.refusedLines().empty()) {
        requireSame(describe(again), describe(ship), "what was saved comes back");
    } else {
        const bool hasCloak = ship.shipFile().find(Catalogue::cloakName) != std::string::npos;
        require(isMerchantType(ship.Hull()) && hasCloak && ship.systemsAboard().size() > 1,
                "only the cloak rule refuses what was saved");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ShipYard yard(readTextFile(SOURCE_FOLDER "/data/weaps.dat"));
    static const ShipServices services = yard.services();
    const std::string file =
        yard.folder().write("loaded.shp", {reinterpret_cast<const char*>(data), size});
    ShipClass ship(services);
    const bool isLoaded = ship.loadShip(file);
    require(!isLoaded || (ship.g_bSaved && ship.g_sSaveName == file), "a loaded ship is saved");
    require(!ship.g_bAutoMass && !ship.isBusy(), "a load ends with AutoMass off");
    const std::string loaded = describe(ship);
    const std::string text = readTextFile(file);
    checkFaults(text, ship, isLoaded);
    requireSame(describe(ship), loaded, "a check leaves the ship as it is");

    ShipClass twin(services);
    require(twin.loadShip(file) == isLoaded, "a load does not depend on what was read before");
    requireSame(describe(twin), loaded, "a load does not depend on what was read before");
    if (isLoaded) {
        checkRoundTrip(ship, services, yard.folder());
    }
    return 0;
}
