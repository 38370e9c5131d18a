#include "testShip.h"

#include "Error.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace fleetwright;

using ShipClassTest = NewShip;

TEST_F(ShipClassTest, WorksOutTheFiguresOfKnownDesigns) {
    const auto design = [&](std::int32_t hull, std::int32_t mass, std::int16_t thrust,
                            std::int32_t ftl, std::int32_t armor, std::int16_t streamline) {
        ship->Hull(hull);
        ship->mass(mass);
        ship->THRUST(thrust);
        ship->FTL(ftl);
        ship->Armor(armor);
        ship->Streamline(streamline);
        return std::to_string(ship->hullFigures().hullCost) + ": " + figures(*ship);
    };
    EXPECT_EQ(design(1, 50, 4, 1, 2, 1), "175: 425 25 4 3 3 25");
    EXPECT_EQ(design(3, 150, 3, 0, 0, 0), "225: 1125 38 6 4 4 113");
    EXPECT_EQ(design(2, 30, 1, 1, 0, 0), "45: 105 8 3 1 1 3");
    EXPECT_EQ(design(4, 7, 0, 0, 0, 0), "14: 14 4 2 1 1 4");
}

TEST_F(ShipClassTest, EachWriteRecalculatesOnceAndMarksTheShip) {
    EventLog events(*ship);
    const std::vector<std::function<void()>> writes = {
        [&] { ship->mass(10); },     [&] { ship->Armor(1); }, [&] { ship->Streamline(1); },
        [&] { ship->Hull(2); },      [&] { ship->FTL(3); },   [&] { ship->THRUST(4); },
        [&] { ship->weapChange(); }, [&] { ship->Armor(3); }, [&] { ship->Streamline(-1); },
    };
    for (const auto& write : writes) {
        ship->g_bSaved = true;
        write();
        EXPECT_EQ(events.take(), "( )");
        EXPECT_FALSE(ship->g_bSaved);
    }
    ship->g_bSaved = true;
    ship->g_sShipName = "Name";
    ship->g_bAutoMass = true;
    EXPECT_EQ(events.take(), "");
    EXPECT_TRUE(ship->g_bSaved);
}

TEST_F(ShipClassTest, ListenersSeeTheMarkThatBelongsToTheEvent) {
    std::string seen;
    const auto note = [&] { seen += ship->g_bSaved ? "saved " : "changed "; };
    const Connection recalculated = ship->Recalculated.connect(note);
    const Connection saved = ship->ShipSaved.connect(note);
    ship->weapChange();
    std::string name = (yard.folder().path() / "ship.shp").string();
    ship->saveShip(name);
    EXPECT_EQ(seen, "changed saved ");
    // What listeners change while a ship is loaded leaves no mark.
    const Connection loaded = ship->ShipLoaded.connect([&] { ship->weapChange(); });
    ship->loadShip(name);
    EXPECT_TRUE(ship->g_bSaved);
}

TEST_F(ShipClassTest, AListenerThatThrowsLeavesTheShipAsItWas) {
    ship->mass(30);
    ship->g_bSaved = true;
    const std::string before = figures(*ship);
    Connection fault = ship->Recalculated.connect([] { throw std::runtime_error("fault"); });
    const std::vector<std::function<void()>> writes = {
        [&] { ship->mass(150); },         [&] { ship->Hull(Merchant); },
        [&] { ship->FTL(TugDrive); },     [&] { ship->THRUST(8); },
        [&] { ship->Armor(2); },          [&] { ship->Streamline(2); },
        [&] { ship->addWeap("Gun", 3); },
    };
    for (const auto& write : writes) {
        EXPECT_THROW(write(), std::runtime_error);
        EXPECT_EQ(figures(*ship), before);
        EXPECT_EQ(ship->hullFigures().hullCost, 60);
        EXPECT_TRUE(ship->g_bSaved);
        EXPECT_FALSE(ship->isBusy());
    }
    fault = Connection();
    ship->weapChange();
    EXPECT_EQ(figures(*ship), before);
}

TEST_F(ShipClassTest, HoldsValuesToTheirBounds) {
    for (const std::int32_t mass : {1, 0, -7, INT32_MIN}) {
        ship->mass(mass);
        EXPECT_EQ(ship->mass(), 2);
    }
    ship->THRUST(9);
    EXPECT_EQ(ship->THRUST(), 8);
    ship->THRUST(-1);
    EXPECT_EQ(ship->THRUST(), 0);
    ship->Armor(2);
    ship->Armor(3);
    EXPECT_EQ(ship->Armor(), 2);
    ship->Streamline(2);
    ship->Streamline(7);
    EXPECT_EQ(ship->Streamline(), 2);
}

TEST_F(ShipClassTest, OverflowLeavesTheShipAsItWas) {
    ship->mass(150'000'000);
    ship->g_bSaved = true;
    const std::string before = figures(*ship);
    EventLog events(*ship);
    const std::vector<std::function<void()>> writes = {
        [&] { ship->mass(2'000'000'000); },
        [&] { ship->FTL(30); },
        [&] { ship->THRUST(8); },
        [&] { ship->addWeap("Giant", 1); },
        [&] { ship->addWeap("Gun", 250'000'000); },
    };
    for (const auto& write : writes) {
        EXPECT_THROW(write(), OverflowError);
    }
    EXPECT_EQ(figures(*ship), before);
    EXPECT_EQ(ship->mass(), 150'000'000);
    EXPECT_EQ(ship->FTL(), 1);
    EXPECT_TRUE(ship->g_bSaved);
    EXPECT_EQ(events.take(), "( ( ( ( (");
    ship->addWeap("Gun", 1);
    EXPECT_EQ(ship->g_iMassLeft, 74'999'998);
}
