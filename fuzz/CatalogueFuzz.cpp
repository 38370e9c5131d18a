// The catalogue file. An input is its bytes.

#include "Catalogue.h"
#include "CatalogueCheck.h"
#include "Error.h"
#include "ShipClass.h"
#include "TemporaryFolder.h"
#include "TextFile.h"
#include "capitals.h"
#include "explainShip.h"
#include "formulaFault.h"
#include "require.h"
#include "strfcns.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace fleetwright;

namespace {

/// The lines that hold records, by their numbers.
using RecordLines = std::map<int, std::string>;

RecordLines recordLines(std::string_view text) {
    RecordLines records;
    LineReader reader(text);
    std::string_view line;
    while (reader.next(line)) {
        if (!line.empty() && line.front() != '#') {
            records[reader.lineNumber()] = line;
        }
    }
    return records;
}

/// A line's fields as the cutter with the memory gives them, which is what the format rests on.
CatalogueLine cutWithMemory(std::string line, std::vector<std::string>& pieces) {
    pieces.clear();
    pieces.push_back(strTok(line, ",", true));
    for (int field = 2; field <= 7; ++field) {
        std::string goOn;
        pieces.push_back(strTok(goOn, field == 7 ? "" : ",", true));
    }
    return {.name = pieces[0],
            .massform = pieces[1],
            .costform = pieces[2],
            .parentKey = pieces[3],
            .categoryKey = pieces[4],
            .arclist = pieces[5],
            .icon = pieces[6]};
}

void checkRecords(const Catalogue& catalogue, const RecordLines& lines) {
    require(catalogue.records().size() == lines.size(), "every line but a comment is a record");
    std::int32_t cloak = 0;
    std::int32_t index = 0;
    std::vector<std::string> pieces;
    for (const auto& [number, line] : lines) {
        const WeapRec& record = catalogue.records()[static_cast<std::size_t>(index)];
        const CatalogueLine fields = cutWithMemory(line, pieces);
        require(record.name == fields.name && record.massform == fields.massform &&
                    record.costform == fields.costform && record.arclist == fields.arclist &&
                    record.icon == fields.icon,
                "a line is cut as the cutter with the memory cuts it");
        require(record.amount == 0, "a new catalogue has nothing aboard");
        cloak = fields.name == Catalogue::cloakName ? index : cloak;
        ++index;
    }
    require(catalogue.cloakIndex() == cloak, "the last cloak counts");
}

/// The lines that cannot be hung in the tree as it has grown so far, or have no price.
std::set<int> linesOutOfTree(const RecordLines& lines) {
    std::set<int> faulty;
    std::map<std::string, bool> isCategory = {{"BLANK", false}};
    for (const std::string_view root : catalogueRoots) {
        isCategory[std::string(root)] = true;
    }
    for (const auto& [number, line] : lines) {
        const CatalogueLine fields = cutCatalogueLine(line);
        const std::string categoryKey = toCapitals(fields.categoryKey);
        const std::string parent = fields.isCategory() ? toCapitals(fields.parentKey) : categoryKey;
        const std::string key = fields.isCategory() ? categoryKey : std::string(fields.name);
        const bool hangs = isCategory.contains(parent) && isCategory[parent];
        const bool isNew = !key.empty() && isCategory.try_emplace(key, fields.isCategory()).second;
        const bool hasPrice = fields.isCategory() ||
                              (!formulaFault(fields.massform) && !formulaFault(fields.costform));
        if (!hangs || !isNew || !hasPrice) {
            faulty.insert(number);
        }
    }
    return faulty;
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
    std::set<int> atStart;
    for (const Fault& fault : checkCatalogue(text, CatalogueCheck::Start)) {
        atStart.insert(fault.line);
    }
    require(!all.empty() || atStart.empty(), "what ends the start is a fault for the author, too");
    require(atStart == linesOutOfTree(lines), "the start ends where the tree would be in pieces");
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
    for (const Explanation& figure : explainShip(ship)) {
        const std::int64_t sum =
            std::accumulate(figure.terms.begin(), figure.terms.end(), std::int64_t{0},
                            [](std::int64_t s, const auto& term) { return s + term.value; });
        require(sum == figure.sum, "a figure is the sum of its terms");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    const std::string file = folder.write("weaps.dat", {reinterpret_cast<const char*>(data), size});
    const std::string text = readTextFile(file);
    const RecordLines records = recordLines(text);
    Catalogue catalogue;
    catalogue.loadWeaps(file);
    checkRecords(catalogue, records);
    checkFaults(text, records);
    checkShip({.catalogueFile = file, .formula = formula_calculate, .eventLoopTurn = {}});
    return 0;
}
