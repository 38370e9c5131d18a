// The catalogue file. An input is its bytes.

#include "CatalogueCheck.h"
#include "Error.h"
#include "ShipClass.h"
#include "TemporaryFolder.h"
#include "readFile.h"
#include "require.h"

#include <algorithm>
#include <cstdint>
#include <string>

using namespace fleetwright;

namespace {

/// Fits what the catalogue offers.
void checkShip(const ShipServices& services) {
    ShipClass ship(services);
    constexpr std::int32_t mostTried = 20;
    for (std::int32_t i = 0; i < std::min(ship.g_lWeapCount, mostTried); ++i) {
        WeapRec record;
        std::int32_t index = i;
        ship.listWeap(index, record);
        const ShipState before = ship.state();
        try {
            require(ship.addWeap(record.name, 1 + i), "a record's name is found");
        } catch (const OverflowError&) {
            require(ship.state() == before, "an act that overflows changes nothing");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    const std::string file = folder.write("weaps.dat", {reinterpret_cast<const char*>(data), size});
    const std::string text = readTextFile(file);
    const std::vector<Fault> faults = checkCatalogue(text);
    requireInOrder(faults, text);
    require(!faults.empty() || checkCatalogue(text, CatalogueCheck::Start).empty(),
            "what ends the start is a fault for the author, too");
    checkShip({.catalogueFile = file, .formula = formula_calculate, .eventLoopTurn = {}});
    return 0;
}
