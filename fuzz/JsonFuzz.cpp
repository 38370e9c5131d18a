// Ships as JSON. An input is the bytes of a JSON file.

#include "ShipClass.h"
#include "readFile.h"
#include "require.h"
#include "shipJson.h"
#include "testShip.h"

#include <algorithm>
#include <cstdint>
#include <string>

using namespace fleetwright;

namespace {

/// What was read is a ship file that says the same, and its ship comes back from JSON.
void checkShip(const JsonShip& read, ShipClass& ship) {
    const std::string shipFile = shipFileOf(read.design);
    const bool isLoaded = ship.loadText(shipFile);
    require(isLoaded || !ship.fileFault()->text.empty(), "what does not load says why");
    const auto lines = std::ranges::count(shipFile, '\n');
    for (int line = 0; line <= lines; ++line) {
        require(read.lineOf(line) >= read.line, "each line comes from one of the JSON");
    }
    if (!isLoaded) {
        return;
    }
    const ShipDesign design = ship.design();
    require(design.shipName == read.design.shipName &&
                design.designerName == read.design.designerName && design.hull == read.design.hull,
            "a ship file holds all that JSON says");
    const auto again = shipsInJson(shipJson(ship, "x.shp"));
    require(again.size() == 1 && again.front().file == "x", "a ship comes back from JSON");
    requireSame(shipFileOf(again.front().design), ship.shipFile(), "and so does all of it");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ShipYard yard(readTextFile(SOURCE_FOLDER "/data/weaps.dat"));
    static const ShipServices services = yard.services();
    const std::string json(reinterpret_cast<const char*>(data), size);
    try {
        for (const JsonShip& ship : shipsInJson(json)) {
            ShipClass loaded(services);
            checkShip(ship, loaded);
        }
    } catch (const FaultError& error) {
        const Fault fault = error.fault();
        require(fault.line >= 1 && fault.line <= 1 + std::ranges::count(json, '\n'),
                "a fault is in a line of the file");
        requireSame(shownText(fault.text, size + 200), fault.text,
                    "what is wrong is said in one line that only shows");
    } catch (const OverflowError&) {
        // A system's figures can be larger than those of the whole ship.
    }
    return 0;
}
