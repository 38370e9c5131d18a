#include "ShipOnScreen.h"

#include "Error.h"
#include "fileCalls.h"
#include "frmMain.h"
#include "testShip.h"

#include <gtest/gtest.h>

#include <utility>

using namespace fleetwright;

namespace {

/// The design on a screen: "hull mass thrust ftl armor streamline", and the figures.
std::string shownOn(ShipOnScreen& screen) {
    const ShipClass& ship = screen.ship();
    return std::to_string(ship.Hull()) + ' ' + std::to_string(ship.mass()) + ' ' +
           std::to_string(ship.THRUST()) + ' ' + std::to_string(ship.FTL()) + ' ' +
           std::to_string(ship.Armor()) + ' ' + std::to_string(ship.Streamline()) + ", " +
           figures(ship);
}

/// The design of a file as the program shows it.
std::string shown(std::string_view text, bool withAutoMass = false) {
    static const ShipYard yard;
    ShipOnScreen screen(yard.folder().path());
    EXPECT_FALSE(screen.load(yard.folder().write("shown.shp", text)));
    if (withAutoMass) {
        screen.switchAutoMassOn();
    }
    return shownOn(screen);
}

}  // namespace

TEST(ShipOnScreen, BringsTheMassToTwo) {
    for (const char* mass : {"1", "-2000000000"}) {
        EXPECT_EQ(shown(std::string("Mass: ") + mass), "1 2 2 1 0 0, 7 1 2 0 1 1") << mass;
    }
}

TEST(ShipOnScreen, TakesDriveThrustAndStreamliningFromABase) {
    for (const char* type : {"Starbase", "Space Station", "Q-Space Station"}) {
        const std::string file = std::string("Mass: 40\nThrust: 6\nFTL: Tug\nArmor: 1\n"
                                             "Streamlining: Full\nType: ") +
                                 type + "\n";
        EXPECT_EQ(shown(file).substr(1, 12), " 40 0 0 1 0,") << type;
        EXPECT_EQ(shown(file + "System: Gun, 1").substr(1, 12), " 40 0 0 1 0,") << type;
    }
    // A base that is a base already, in the middle of the load, is not brought in order again.
    EXPECT_EQ(shown("Mass: 40\nType: Starbase\nSystem: Gun, 1\nThrust: 4\nFTL: Normal"),
              "4 40 4 1 0 0, 126 20 4 3 3 18");
}

TEST(ShipOnScreen, KeepsCodesThatHaveNoButton) {
    EXPECT_EQ(shown("Mass: 10\nThrust: 9"), "1 10 9 1 0 0, 53 5 2 1 1 5");
    // Nothing on the window changes, so that nothing is worked out anew.
    EXPECT_EQ(shown("Thrust: 12"), "1 2 12 1 0 0, 7 1 2 0 1 1");
}

TEST(ShipOnScreen, SeesOneCatalogueWhateverBecomesOfItsFile) {
    const ShipYard yard;
    const auto catalogue = CatalogueFile::readOnce(yard.folder().path() / "weaps.dat");
    const std::string file = yard.folder().write("some.shp", "Mass: 40\nSystem: Gun, 1");
    const auto cost = [&](const CatalogueFile& used) {
        ShipOnScreen screen(yard.folder().path(), used);
        return screen.load(file) ? -1 : screen.ship().g_lCost;
    };
    const std::int32_t before = cost(catalogue);
    for (const char* const other : {"Gun,1,1000,BEAM,BEAM,F,x.gif", "no catalogue"}) {
        yard.folder().write("weaps.dat", other);
        EXPECT_EQ(cost(catalogue), before);
    }
    // It is not there at the first look, but at the second one.
    hookFileCalls([isFirst = true](FileCall, const std::filesystem::path& path) mutable {
        const bool fails = path.filename() == "weaps.dat" && std::exchange(isFirst, false);
        return fails ? std::make_error_code(std::errc::no_such_file_or_directory)
                     : std::error_code();
    });
    EXPECT_THROW(cost(catalogue.path()), FileError);
    hookFileCalls({});
    std::filesystem::remove(catalogue.path());
    EXPECT_EQ(cost(catalogue), before);
}

TEST(ShipOnScreen, FitsTheMassAndShowsWhatItWrites) {
    EXPECT_EQ(shown("Mass: 80\nSystem: Ballast, 20", true), "1 40 2 1 0 0, 200 20 4 3 3 0");
    EXPECT_EQ(shown("Mass: 60", true), "1 2 2 1 0 0, 7 1 2 0 1 1");
}

TEST(ShipOnScreen, ShowsAShipAlikeWhateverItHasShownBefore) {
    const ShipYard yard;
    const auto catalogue = CatalogueFile::readOnce(yard.folder().path() / "weaps.dat");
    const auto load = [&](ShipOnScreen& screen, std::string_view text) {
        const bool hasFailed = screen.load(yard.folder().write("shown.shp", text)).has_value();
        std::string seen = shownOn(screen) + screen.ship().shipFile();
        for (const ListView::Row& row : screen.window().aboard.lvCurrentWeapons.rows()) {
            seen += row.key + ' ' + row.subItem + '\n';
        }
        return seen + (hasFailed ? "failed" : "loaded");
    };
    const std::string_view ships[] = {
        "",
        "Mass: -5\nArmor: 2\nStreamlining: Full",
        "Ship Name: Odd\nMass: 10\nThrust: 9",
        "Thrust: 12\nFTL: None",
        "Mass: 40\nThrust: 6\nFTL: Tug\nArmor: 1\nStreamlining: Full\nType: Starbase\nSystem: Gun, "
        "1",
        "Mass: 40\nType: Starbase\nSystem: Gun, 1\nThrust: 4\nFTL: Normal",
        "Mass: 60\nType: Merchant\nSystem: Ballast, 3\nSystem: Nowhere, 1",
        "Mass: 2000000000\nSystem: Ballast, 2000000000",
        "Mass: 80\nThrust: 0\nSystem: Ballast, 20",
    };
    for (const std::string_view first : ships) {
        for (const std::string_view second : ships) {
            ShipOnScreen used(yard.folder().path(), catalogue),
                fresh(yard.folder().path(), catalogue);
            load(used, first);
            EXPECT_EQ(load(used, second), load(fresh, second)) << second << "\nbehind\n" << first;
            used.switchAutoMassOn();
            EXPECT_EQ(load(used, first), load(fresh, first)) << first << "\nbehind\n" << second;
        }
    }
}
