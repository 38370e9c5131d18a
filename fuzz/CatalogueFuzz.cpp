// The catalogue file. An input is its bytes.

#include "Catalogue.h"
#include "CatalogueCheck.h"
#include "Error.h"
#include "TemporaryFolder.h"
#include "files.h"
#include "require.h"
#include "testShip.h"
#include "text.h"

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
        require(ship.listWeap(index, record) == (i + 1 < ship.g_lWeapCount),
                "the list says whether another record follows");
        const std::string before = ship.shipFile() + figures(ship);
        try {
            require(ship.addWeap(record.name, 1 + i), "a record's name is found");
        } catch (const OverflowError&) {
            requireSame(ship.shipFile() + figures(ship), before,
                        "an act that overflows changes nothing");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    const std::string file = folder.write("weaps.dat", {reinterpret_cast<const char*>(data), size});
    const std::string text = readTextFile(file);
    std::size_t records = 0;
    LineReader lines(text);
    for (std::string_view line; lines.next(line);) {
        records += !line.empty() && line.front() != '#' ? 1 : 0;
    }
    Catalogue catalogue;
    catalogue.loadWeaps(file);
    require(catalogue.records().size() == records, "every line but a comment is a record");
    const std::vector<Fault> faults = checkCatalogue(text);
    requireInOrder(faults, lines.lineNumber());
    require(!faults.empty() || checkCatalogue(text, CatalogueCheck::Start).empty(),
            "what ends the start is a fault for the author, too");
    checkShip({.catalogueFile = file, .formula = formula_calculate, .eventLoopTurn = {}});
    return 0;
}
