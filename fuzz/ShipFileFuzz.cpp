// The ship file. An input is its bytes.

#include "Error.h"
#include "ShipClass.h"
#include "ShipFileCheck.h"
#include "TemporaryFolder.h"
#include "files.h"
#include "require.h"
#include "shipWords.h"
#include "text.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

using namespace fleetwright;

namespace {

int lineCount(std::string_view text) {
    LineReader lines(text);
    std::string_view line;
    while (lines.next(line)) {
    }
    return lines.lineNumber();
}

void checkFaults(const std::string& text, const ShipClass& ship, bool isLoaded) {
    const int lines = lineCount(text);
    require(isLoaded == !ship.fileFault(), "a load fails with a fault, and only then");
    if (!isLoaded) {
        require(ship.fileFault()->line >= 0 && ship.fileFault()->line <= lines &&
                    !ship.fileFault()->text.empty(),
                "a fault has its line and is put into words");
    }
    for (const RefusedLine& refused : ship.refusedLines()) {
        require(refused.fault.line >= 1 && refused.fault.line <= lines &&
                    refused.text.starts_with("System:"),
                "a refused line is a line of the file");
    }
    const std::vector<Fault> faults = checkShipFile(text, ship, ship.fileFault());
    int line = 0;
    for (const Fault& fault : faults) {
        require(fault.line >= 0 && fault.line <= lines && !fault.text.empty(),
                "a fault has its line and is put into words");
        require(fault.line == 0 || (line != -1 && fault.line >= line),
                "faults are in the order of their lines");
        line = fault.line == 0 ? -1 : fault.line;
    }
    require(!faults.empty() || (isLoaded && ship.refusedLines().empty()),
            "what the load does not take is a fault of the file");
    require(!faults.empty() || describe(ship, false) == describe(ship),
            "a file without faults has no amounts below 0");
}

/// The system and the number of pieces in a line as ships are saved; nothing for any other line.
std::optional<std::pair<std::string, std::int32_t>> savedSystem(std::string_view line) {
    constexpr std::string_view key = "System: ";
    constexpr std::size_t mostDigits = 6;
    const std::size_t comma = line.find(", ");
    if (!line.starts_with(key) || comma == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view name = line.substr(key.size(), comma - key.size());
    const std::string_view digits = line.substr(comma + 2);
    if (digits.empty() || digits.size() > mostDigits ||
        digits.find_first_not_of("0123456789") != std::string_view::npos ||
        name.find_first_of(":,") != std::string_view::npos || trimmed(name) != name) {
        return std::nullopt;
    }
    return std::pair{std::string(name), std::stoi(std::string(digits))};
}

/// Lines as ships are saved come aboard, all of them, or the file says why not.
void checkSystems(std::string_view text, const ShipClass& ship) {
    std::map<std::string, std::int64_t> wanted;
    bool isPlain = ship.refusedLines().empty() && !ship.fileFault();
    LineReader lines(text);
    std::string_view line;
    while (lines.next(line)) {
        if (const auto system = savedSystem(line)) {
            wanted[system->first] += system->second;
            require(!ship.fileFault() || ship.fileFault()->line != lines.lineNumber() ||
                        ship.fileFault()->text == OverflowError().what(),
                    "a line as ships are saved can be read");
        } else if (line.empty() || line.starts_with("System:")) {
            isPlain = false;  // an empty line can bring a system, too
        }
    }
    std::map<std::string, std::int64_t> aboard;
    for (const WeapRec& record : ship.systemsAboard()) {
        aboard[std::string(record.name)] = record.amount;
    }
    std::erase_if(wanted, [](const auto& system) { return system.second == 0; });
    require(!isPlain || aboard == wanted, "what the lines say is aboard");
}

/// What was loaded, brought in order as the window does, can be shown, saved and loaded again.
void checkRoundTrip(ShipClass& ship, const ShipServices& services, const TemporaryFolder& folder) {
    ShipState shown = ship.state();
    shown.hull = inOrder(shown.hull);
    ship.restore(shown);
    ship.weapChange();  // would throw where a figure does not fit

    std::string file = (folder.path() / "saved.shp").string();
    require(ship.saveShip(file) && ship.g_bSaved, "a ship can be saved");
    requireSame(folder.read("saved.shp"), ship.shipFile(), "the file holds the design");
    ShipClass again(services);
    if (!again.loadShip(file)) {
        require(overflowsOnTheWay(ship, services), "what was saved loads");
        return;
    }
    again.weapChange();
    if (breaksCloakRule(ship)) {
        require(!again.refusedLines().empty() && !breaksCloakRule(again),
                "the cloak rule holds at a load");
    } else {
        requireSame(describe(again, false), describe(ship, false), "what was saved comes back");
        requireSame(again.shipFile(), ship.shipFile(), "a saved text stays as it is");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    static const ShipServices services = {.catalogueFile = deliveredCatalogue(folder),
                                          .formula = formula_calculate,
                                          .eventLoopTurn = {}};
    const std::string file =
        folder.write("loaded.shp", {reinterpret_cast<const char*>(data), size});
    ShipClass ship(services);
    const bool isLoaded = ship.loadShip(file);
    require(!isLoaded || (ship.g_bSaved && ship.g_sSaveName == file), "a loaded ship is saved");
    require(!ship.g_bAutoMass && !ship.isBusy(), "a load ends with AutoMass off");
    const std::string loaded = describe(ship);
    const std::string text = readTextFile(file);
    checkFaults(text, ship, isLoaded);
    checkSystems(text, ship);
    requireSame(describe(ship), loaded, "a check leaves the ship as it is");

    ShipClass twin(services);
    require(twin.loadShip(file) == isLoaded, "a load does not depend on what was read before");
    requireSame(describe(twin), loaded, "a load does not depend on what was read before");
    if (isLoaded) {
        checkRoundTrip(ship, services, folder);
    }
    return 0;
}
