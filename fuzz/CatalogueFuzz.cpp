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
#include <string>
#include <string_view>
#include <vector>

using namespace fleetwright;

namespace {

/// The lines that hold records.
std::vector<std::string> recordLines(std::string_view text, int& lines) {
    std::vector<std::string> records;
    LineReader reader(text);
    std::string_view line;
    while (reader.next(line)) {
        if (!line.empty() && line.front() != '#') {
            records.emplace_back(line);
        }
    }
    lines = reader.lineNumber();
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

void checkRecords(const Catalogue& catalogue, const std::vector<std::string>& lines) {
    require(catalogue.records().size() == lines.size(), "every line but a comment is a record");
    std::int32_t cloak = 0;
    std::vector<std::string> pieces;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const WeapRec& record = catalogue.records()[i];
        const CatalogueLine fields = cutWithMemory(lines[i], pieces);
        require(record.name == fields.name && record.massform == fields.massform &&
                    record.costform == fields.costform && record.arclist == fields.arclist &&
                    record.icon == fields.icon,
                "a line is cut as the cutter with the memory cuts it");
        require(record.amount == 0, "a new catalogue has nothing aboard");
        if (fields.name == Catalogue::cloakName) {
            cloak = static_cast<std::int32_t>(i);
        }
    }
    require(catalogue.cloakIndex() == cloak, "the last cloak counts");
}

/// A catalogue that passes the check of the start must make a tree without a fault.
void checkTree(const std::vector<std::string>& lines) {
    std::map<std::string, bool> isCategory = {{"BLANK", false}};
    for (const std::string_view root : catalogueRoots) {
        isCategory[std::string(root)] = true;
    }
    for (const std::string& line : lines) {
        const CatalogueLine fields = cutCatalogueLine(line);
        const std::string categoryKey = toCapitals(fields.categoryKey);
        const std::string parent = fields.isCategory() ? toCapitals(fields.parentKey) : categoryKey;
        const std::string key = fields.isCategory() ? categoryKey : std::string(fields.name);
        require(isCategory.contains(parent) && isCategory[parent], "the parent is in the tree");
        require(isCategory.try_emplace(key, fields.isCategory()).second, "no key stands twice");
        if (!fields.isCategory()) {
            require(!formulaFault(fields.massform) && !formulaFault(fields.costform),
                    "all formulas can be read");
        }
    }
}

void checkFaults(const std::string& text, const std::vector<std::string>& records, int lines) {
    const std::vector<Fault> all = checkCatalogue(text);
    const std::vector<Fault> start = checkCatalogue(text, CatalogueCheck::Start);
    int line = 0;
    for (const Fault& fault : all) {
        require(fault.line >= 0 && fault.line <= lines && !fault.text.empty(),
                "a fault has its line and is put into words");
        require(fault.line == 0 || (line != -1 && fault.line >= line),
                "faults are in the order of their lines");
        line = fault.line == 0 ? -1 : fault.line;
    }
    require(!all.empty() || start.empty(), "what ends the start is a fault for the author, too");
    if (start.empty()) {
        checkTree(records);
    }
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
    int lines = 0;
    const std::vector<std::string> records = recordLines(text, lines);
    Catalogue catalogue;
    catalogue.loadWeaps(file);
    checkRecords(catalogue, records);
    checkFaults(text, records, lines);
    checkShip({.catalogueFile = file, .formula = formula_calculate, .eventLoopTurn = {}});
    return 0;
}
