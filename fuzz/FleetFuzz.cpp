// Fleet files. An input is the text of one, and behind a line of NUL what somebody then does to the
// fleet.

#include "Choices.h"
#include "FaultError.h"
#include "FleetSum.h"
#include "addShips.h"
#include "fleetFile.h"
#include "fleetPaths.h"
#include "fleetWords.h"
#include "require.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>

using namespace fleetwright;

namespace {

/// The same without the lines that it was read from.
Fleet meant(Fleet fleet) {
    fleet.asRead.clear();
    for (FleetShip& ship : fleet.ships) {
        ship.asRead.clear();
    }
    return fleet;
}

FleetShip& anyShip(Fleet& fleet, Choices& choices) {
    if (fleet.ships.empty()) {
        addShips(fleet, {"a.shp"});
    }
    return choices.pick(fleet.ships);
}

void change(Fleet& fleet, Choices& choices) {
    static const std::string texts[] = {"",    " a ", "\"",    "b\"", "#",  "=",
                                        "a=b", "é",   "FW1:2", "x",   "\t", "\"\""};
    static const std::string notes[] = {"", "one", "one\ntwo", "\n", " \n\"x\"\n#"};
    switch (choices.below(9)) {
    case 0:
        fleet.name = choices.pick(texts);
        break;
    case 1:
        fleet.notes = choices.pick(notes);
        break;
    case 2:
        fleet.pointsLimit = choices.below(3);
        break;
    case 3:
        fleet.limits.push_back({.kind = "Scout", .most = choices.below(3)});
        break;
    case 4:
        fleet.limits.clear();
        break;
    case 5:
        anyShip(fleet, choices).count = 1 + choices.below(3);
        break;
    case 6: {
        FleetShip& ship = anyShip(fleet, choices);
        ship.names = {choices.pick(texts), choices.pick(texts)};
        ship.count = 2;
        break;
    }
    case 7:
        anyShip(fleet, choices).notes = choices.pick(notes);
        break;
    default:
        std::swap(anyShip(fleet, choices), anyShip(fleet, choices));
    }
}

/// Ships that each have a mass of their own, as `fleetSum` wants them.
FleetRows rowsOf(const Fleet& fleet) {
    FleetRows rows;
    for (std::size_t i = 0; i < fleet.ships.size(); ++i) {
        auto row = std::make_shared<FleetRow>();
        row->figures.emplace();
        row->figures->points = static_cast<std::int32_t>(i);
        row->figures->designation = "Scout";
        rows.push_back(std::move(row));
    }
    return rows;
}

void checkFleet(const std::string& text, Choices& choices) {
    const ReadFleet read = parseFleet(text);
    requireInOrder(read.faults, text);
    require(read.shipLines.size() == read.fleet.ships.size() &&
                std::ranges::is_sorted(read.shipLines),
            "each ship begins in a line");
    requireSame(fleetText(read.fleet), text, "what nobody has changed is written as it was");
    const FleetSum sum = fleetSum(read.fleet, rowsOf(read.fleet));
    require(limitWords(read.fleet, sum).size() == read.limitLines.size(),
            "each limit stands in a line");
    Fleet fleet = read.fleet;
    while (!choices.oneIn(4)) {
        change(fleet, choices);
        const std::string written = fleetText(fleet);
        Fleet again = parseFleet(written).fleet;
        require(meant(again) == meant(fleet), "what is written is what was meant");
        requireSame(fleetText(again), written, "and is written so again");
        fleet = std::move(again);
    }
    Fleet moved = fleet;
    moveFleet(moved, "/here", "/there/far");
    for (std::size_t i = 0; i < fleet.ships.size(); ++i) {
        requireSame(shipPath("/there/far", moved.ships[i]), shipPath("/here", fleet.ships[i]),
                    "a fleet names the same ships from another folder");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::uint8_t* const end = std::find(data, data + size, std::uint8_t{0});
    const std::string text(data, end);
    Bytes choices({end, data + size});
    if (!isUtf8(text)) {
        return 0;  // whoever reads a file makes it that
    }
    try {
        checkFleet(text, choices);
    } catch (const FaultError& error) {
        require(error.fault().line <= 1 + std::ranges::count(text, '\n') &&
                    shownText(error.what(), size + 200) == error.what(),
                "what is no fleet is told in one line that only shows");
    }
    return 0;
}
