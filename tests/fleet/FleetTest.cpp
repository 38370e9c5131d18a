#include "Error.h"
#include "FleetSum.h"
#include "addShips.h"
#include "caseFile.h"
#include "fleetFile.h"
#include "fleetPaths.h"
#include "wholeNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

using namespace fleetwright;

namespace {

std::vector<std::string> partsOf(const std::string& text) {
    return linesOf(replaced(text, "|", "\n"));
}

void changeShip(FleetShip& ship, const std::string& act) {
    const auto [what, value] = cut(act);
    if (what == "file") {
        ship.file = value;
    } else if (what == "count") {
        ship.count = wholeNumber(value);
    } else if (what == "names") {
        ship.names = partsOf(value);
    } else if (what == "note") {
        ship.notes = replaced(value, "|", "\n");
    } else {
        ship.fingerprint = value;
    }
}

/// What somebody does to a fleet, in a line.
void change(Fleet& fleet, const std::string& act) {
    const auto [what, value] = cut(act);
    if (what == "name") {
        fleet.name = value;
    } else if (what == "player") {
        fleet.player = value;
    } else if (what == "points") {
        fleet.pointsLimit = wholeNumber(value);
    } else if (what == "note") {
        fleet.notes = replaced(value, "|", "\n");
    } else if (what == "no-limit") {
        fleet.limits.erase(fleet.limits.begin());
    } else if (what == "limit") {
        fleet.limits.push_back({.kind = value, .most = 1, .unit = FleetLimit::Unit::Points});
    } else if (what == "add") {
        fleet.ships.emplace_back().file = value;
    } else if (what == "remove") {
        fleet.ships.erase(fleet.ships.begin() + wholeNumber(value));
    } else if (what == "last-first") {
        std::rotate(fleet.ships.rbegin(), fleet.ships.rbegin() + 1, fleet.ships.rend());
    } else if (what == "from" || what == "to") {
        moveFleet(fleet, what == "from" ? value : "/here", what == "from" ? "/here" : value);
    } else {
        const auto [ship, rest] = cut(value);
        changeShip(fleet.ships.at(static_cast<std::size_t>(wholeNumber(ship))), rest);
    }
}

/// All that was understood, in the order of the file.
std::string meaningOf(const Fleet& fleet) {
    std::string text = '[' + fleet.name + "] [" + fleet.player + "] [" + fleet.notes + "] [" +
                       fleet.catalogue + "] limits:";
    text += fleet.pointsLimit ? ' ' + std::to_string(*fleet.pointsLimit) : "";
    for (const FleetLimit& limit : fleet.limits) {
        text += " [" + limitText(limit) + ']';
    }
    for (const FleetShip& ship : fleet.ships) {
        text += "\n" + std::to_string(ship.count) + " [" + ship.file + "] [" + ship.notes + "] [" +
                ship.fingerprint + ']';
        for (const std::string& name : ship.names) {
            text += " [" + name + ']';
        }
    }
    return text + '\n';
}

TEST(FleetFile, IsReadAndWrittenBack) {
    expectCases("fleet/golden/files.txt", [](const Case& each) {
        const std::string written = replaced(replaced(each["file"], "^M", "\r"), "^B", " ");
        ReadFleet read;
        try {
            read = parseFleet(written);
        } catch (const Error& error) {
            return std::string(error.what());
        }
        EXPECT_EQ(fleetText(read.fleet), written);
        std::string made = meaningOf(read.fleet);
        for (const Fault& fault : read.faults) {
            made += complaint("FILE", fault) + '\n';
        }
        made += "ships in line";
        for (const int line : read.shipLines) {
            made += ' ' + std::to_string(line);
        }
        if (each["acts"].empty()) {
            return made;
        }
        for (const std::string& act : linesOf(each["acts"])) {
            change(read.fleet, act);
        }
        const std::string text = fleetText(read.fleet);
        const Fleet again = parseFleet(text).fleet;
        EXPECT_EQ(meaningOf(again), meaningOf(read.fleet));
        return "becomes\n" + replaced(replaced(text, " \n", "^B\n"), "\r", "^M");
    });
}

TEST(FleetShip, NumbersItsShipsByNoNumberOfAnotherOnes) {
    FleetShip ship;
    ship.count = 4;
    ship.names = {"", "Wren 1", "Wren 5"};
    std::string names;
    for (std::size_t i = 0; i < 4; ++i) {
        names += ownName(ship, i, "Wren") + ", ";
    }
    EXPECT_EQ(names, "Wren 9, Wren 1, Wren 5, Wren 4, ");
}

TEST(FleetSum, CountsWhatLoads) {
    Fleet fleet = parseFleet("FleetWright fleet 1\npoints limit = 400\nlimit = Capital: 2 ships\n"
                             "limit = Warship: 100 points\nlimit = Scout: 5 ships\n"
                             "ship = a\ncount = 3\nfingerprint = 1\nship = b\nship = c\n")
                      .fleet;
    ShipFigures figures;
    figures.hull = "Warship";
    figures.shipClass = "Capital";
    figures.mass = 2'000'000'000;
    figures.points = 150;
    figures.damagePoints = 7;
    const auto large = std::make_shared<const FleetRow>(FleetRow{figures, {}, "2"});
    const auto missing = std::make_shared<const FleetRow>();
    const FleetSum sum = fleetSum(fleet, {large, missing, nullptr});
    EXPECT_EQ(sum, (FleetSum{.ships = 3,
                             .mass = 6'000'000'000,
                             .points = 450,
                             .damagePoints = 21,
                             .pointsLeft = -50,
                             .limitsLeft = {-1, -350, 5},
                             .notLoaded = 1,
                             .changed = 1}));
    EXPECT_TRUE(sum.breaksLimit());
    fleet.pointsLimit.reset();
    fleet.limits = {{"Capital", 3, FleetLimit::Unit::Ships}};
    EXPECT_FALSE(fleetSum(fleet, {large, missing, nullptr}).breaksLimit());
}

}  // namespace

TEST(FleetRoom, TakesShipsAsFarAsAFileMayHoldThem) {
    Fleet fleet;
    fleet.ships.resize(Fleet::mostDesigns - 1);
    fleet.ships[7].file = "seven";
    fleet.ships[7].count = FleetShip::mostCount - 1;
    EXPECT_EQ(addShips(fleet, {"last", "seven"}), 7U);
    EXPECT_EQ(fleet.ships.back().file, "last");
    const Fleet full = fleet;
    for (const char* const more : {"seven", "other"}) {
        EXPECT_THROW(addShips(fleet, {"last", more}), Error) << more;
        EXPECT_TRUE(fleet == full);
    }
    EXPECT_EQ(addShips(fleet, {"last", "last"}), Fleet::mostDesigns - 1);
    EXPECT_EQ(fleet.ships.back().count, 3);
}

TEST(FleetPaths, NoFleetNamesAFileThatItCouldNotBeReadWith) {
    EXPECT_EQ(fileInFleet("/fleets", "/ships/Gun.shp"), "../ships/Gun.shp");
    for (const char* const name : {"Two\nlines.shp", "Two\rlines.shp"}) {
        EXPECT_THROW(fileInFleet("/fleets", std::filesystem::path("/ships") / name), Error) << name;
    }
}
