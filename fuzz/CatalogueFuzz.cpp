// The catalogue file. An input is its bytes.

#include "Catalogue.h"
#include "CatalogueCheck.h"
#include "Error.h"
#include "ShipClass.h"
#include "TemporaryFolder.h"
#include "files.h"
#include "require.h"
#include "shipWords.h"
#include "text.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace fleetwright;

namespace {

/// The numbers of the lines that hold records.
using RecordLines = std::set<int>;

RecordLines recordLines(std::string_view text) {
    RecordLines records;
    LineReader reader(text);
    std::string_view line;
    while (reader.next(line)) {
        if (!line.empty() && line.front() != '#') {
            records.insert(reader.lineNumber());
        }
    }
    return records;
}

void checkFaults(const std::string& text, const RecordLines& lines) {
    const std::vector<Fault> all = checkCatalogue(text);
    int last = 0;
    for (const Fault& fault : all) {
        require((fault.line == 0 || lines.contains(fault.line)) && !fault.text.empty(),
                "a fault has its line and is put into words");
        require(fault.line == 0 || (last != -1 && fault.line >= last),
                "faults are in the order of their lines");
        last = fault.line == 0 ? -1 : fault.line;
    }
    require(!all.empty() || checkCatalogue(text, CatalogueCheck::Start).empty(),
            "what ends the start is a fault for the author, too");
}

/// Fits what the catalogue offers: the figures are the sums of what single systems say.
void checkShip(const ShipServices& services) {
    ShipClass ship(services);
    constexpr std::int32_t mostTried = 20;
    for (std::int32_t i = 0; i < std::min(ship.g_lWeapCount, mostTried); ++i) {
        WeapRec record;
        std::int32_t index = i;
        require(ship.listWeap(index, record) == (i + 1 < ship.g_lWeapCount),
                "the list says whether another record follows");
        const std::int32_t cost = ship.g_lCost;
        const std::int32_t massLeft = ship.g_iMassLeft;
        try {
            require(ship.addWeap(record.name, 1 + i), "a record's name is found");
        } catch (const OverflowError&) {
            require(cost == ship.g_lCost && massLeft == ship.g_iMassLeft,
                    "an act that overflows changes nothing");
        }
    }
    requireSums(ship);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    const std::string file = folder.write("weaps.dat", {reinterpret_cast<const char*>(data), size});
    const std::string text = readTextFile(file);
    const RecordLines records = recordLines(text);
    Catalogue catalogue;
    catalogue.loadWeaps(file);
    require(catalogue.records().size() == records.size(), "every line but a comment is a record");
    checkFaults(text, records);
    checkShip({.catalogueFile = file, .formula = formula_calculate, .eventLoopTurn = {}});
    return 0;
}
