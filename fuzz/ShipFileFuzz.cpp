// The ship file, by itself and in a sheet. An input is the bytes of either.

#include "Error.h"
#include "FileFaults.h"
#include "ShipFileCheck.h"
#include "bringInOrder.h"
#include "carriedShips.h"
#include "readFile.h"
#include "require.h"
#include "testShip.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

using namespace fleetwright;

namespace {

void checkFaults(const std::string& text, const ShipClass& ship, bool isLoaded) {
    require(isLoaded == !ship.fileFault(), "a load fails with a fault, and only then");
    const std::vector<Fault> faults = checkShipFile(text, ship, ship.fileFault());
    requireInOrder(faults, text);
    require(!faults.empty() || (isLoaded && ship.refusedLines().empty()),
            "what the load does not take is a fault of the file");
    require(!faults.empty() ||
                std::ranges::none_of(ship.state().amounts,
                                     [](const auto& each) { return each.second < 0; }),
            "a file without faults has no amounts below 0");
}

/// What was loaded, brought in order as the window does, can be shown, saved and loaded again, also
/// after a save in which one call to the system fails.
void checkRoundTrip(ShipClass& ship, const ShipServices& services, const TemporaryFolder& folder,
                    int nthCall) {
    bringInOrder(ship);
    std::string file = (folder.path() / "saved.shp").string();
    folder.write("saved.shp", "old");
    const bool isSaved = [&] {
        const FileFaults faults(nthCall);
        return ship.saveShip(file);
    }();
    const std::string left = folder.read("saved.shp");
    require(left == ship.shipFile() || (!isSaved && left == "old"), "a whole file is left");
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
        requireSame(again.shipFile() + figures(again), ship.shipFile() + figures(ship),
                    "what was saved comes back");
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
    const bool isInSheet = isSheet(readBytes(file));
    require(!isLoaded || (ship.g_bSaved && ship.g_sSaveName == (isInSheet ? "" : file)),
            "a loaded ship is saved, but not into a sheet");
    require(!ship.g_bAutoMass && !ship.isBusy(), "a load ends with AutoMass off");
    if (!isInSheet) {
        checkFaults(readTextFile(file), ship, isLoaded);
    }
    ShipClass twin(services);
    require(twin.loadShip(file) == isLoaded && twin.state() == ship.state(),
            "a load does not depend on what was read before");
    if (isLoaded) {
        checkRoundTrip(ship, services, yard.folder(), static_cast<int>(size % 16));
    }
    return 0;
}
