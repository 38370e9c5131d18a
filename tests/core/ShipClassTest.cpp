// What others see of a ship while it works, and what they can do to it.

#include "Error.h"
#include "testShip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

using namespace fleetwright;

using ShipClassTest = NewShip;

namespace {

std::string g_evaluated;

/// Says what it was asked, and answers 1.
std::int32_t recordCall(char* text, std::int32_t mass, std::int32_t hull, std::int32_t ftl,
                        std::int32_t thrust, std::int32_t hullCost, std::int32_t amount) {
    for (const std::int32_t number : {mass, hull, ftl, thrust, hullCost, amount}) {
        g_evaluated += std::to_string(number) + ' ';
    }
    g_evaluated += std::string(text) + '|';
    return 1;
}

/// Writes into the text that it is given.
std::int32_t writeIntoText(char* text, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                           std::int32_t, std::int32_t) {
    std::copy_n("42", 3, text);
    return 0;
}

ShipServices with(ShipServices services, FormulaFunction formula) {
    services.formula = formula;
    return services;
}

}  // namespace

TEST_F(ShipClassTest, SystemsAreEvaluatedCostFirstForAllPiecesTogether) {
    ShipClass recorded(with(yard.services(), recordCall));
    recorded.mass(20);
    recorded.addWeap("Gun", 3);
    g_evaluated.clear();
    recorded.Armor(2);
    EXPECT_EQ(std::exchange(g_evaluated, {}), "20 1 1 2 60 3 6 * amount|20 1 1 2 60 3 2 * amount|");
    EXPECT_EQ(recorded.previewWeapCost("Screen", 5), 1);
    std::string formula = "mass";
    EXPECT_EQ(recorded.weapCalc(formula), 1);
    EXPECT_EQ(std::exchange(g_evaluated, {}),
              "20 1 1 2 60 5 3 * mass * amount|20 1 1 2 60 1 mass|");
    recorded.addWeap("Gun", -3);
    recorded.weapChange();
    EXPECT_EQ(g_evaluated, "");
}

TEST_F(ShipClassTest, AnEvaluatorMayRewriteTheText) {
    ShipClass rewritten(with(yard.services(), writeIntoText));
    rewritten.previewWeapCost("Gun", 1);
    WeapRec record;
    std::int32_t index = rewritten.weapNameToIndex("Gun");
    rewritten.listWeap(index, record);
    EXPECT_EQ(std::string(record.costform) + ' ' + std::string(record.massform), "42 2 * amount");
    std::string formula = "thrust";
    rewritten.weapCalc(formula);
    EXPECT_EQ(formula, "42");
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

TEST_F(ShipClassTest, ASaveIsDoneWhateverAListenerThrows) {
    const Connection fault = ship->ShipSaved.connect([] { throw OverflowError(); });
    ship->mass(30);
    std::string name = (yard.folder().path() / "done").string();
    EXPECT_TRUE(ship->saveShip(name));
    EXPECT_FALSE(ship->fileFault());
    EXPECT_TRUE(ship->g_bSaved);
    EXPECT_EQ(ship->g_sSaveName, name);
    EXPECT_EQ(yard.folder().read("done.shp"), ship->shipFile());
}

TEST_F(ShipClassTest, ListenersMayChangeTheShipWhileAutoMassGivesUp) {
    ship->mass(50);
    ship->addWeap("Wobble", 1);
    int writes = 0;
    int unsettled = 0;
    const Connection unsettledEvent = ship->AutoMassUnsettled.connect([&] { ++unsettled; });
    // A window that writes back whatever mass it is shown.
    const Connection window = ship->Recalculated.connect([&] {
        if (++writes < 5) {
            ship->mass(ship->mass());
        }
    });
    ship->g_bAutoMass = true;
    ship->weapChange();
    EXPECT_EQ(ship->mass(), 50);
    EXPECT_EQ(unsettled, 1);
    EXPECT_LE(writes, 6);
}

TEST_F(ShipClassTest, WritesOfListenersSettleTogetherWithAutoMass) {
    ship->FTL(NoDrive);
    std::string shown = "2";
    // As the window does: it shows the mass, and what it shows it writes.
    const Connection window = ship->Recalculated.connect([&] {
        const std::string mass = std::to_string(ship->mass());
        if (std::exchange(shown, mass) != mass) {
            ship->mass(std::stoi(mass));
        }
    });
    ship->mass(40);
    ship->g_bAutoMass = true;
    ship->weapChange();
    EXPECT_EQ(shown, "0");
    EXPECT_EQ(ship->mass(), 0);
    ship->addWeap("Sponge", 1);
    EXPECT_EQ(shown, std::to_string(ship->mass()));
}

TEST_F(ShipClassTest, ATurnOfTheEventLoopMayChangeTheShip) {
    ShipServices services = yard.services();
    int turns = 0;
    std::function<void()> inTurn;
    services.eventLoopTurn = [&] {
        ++turns;
        if (inTurn) {
            std::exchange(inTurn, {})();
        }
    };
    ShipClass turning(services);
    turning.mass(50);
    turning.addWeap("Ballast", 15);
    EXPECT_EQ(turns, 0);
    // What a turn throws ends the act, and the ship is as it was.
    turning.g_bAutoMass = true;
    const ShipState before = turning.state();
    inTurn = [] { throw std::runtime_error("turn"); };
    EXPECT_THROW(turning.weapChange(), std::runtime_error);
    EXPECT_EQ(turning.state(), before);
    EXPECT_FALSE(turning.isBusy());
    turns = 0;
    turning.weapChange();
    EXPECT_EQ(turns, 10);
    // The user takes all that was to be fitted off the ship.
    inTurn = [&] {
        EXPECT_TRUE(turning.isBusy());
        turning.addWeap("Ballast", -15);
    };
    turning.weapChange();
    EXPECT_EQ(turning.mass(), 0);
    EXPECT_EQ(turning.g_iMassLeft, 0);
}
