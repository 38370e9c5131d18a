#include "testShip.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

using namespace fleetwright;

namespace {

/// A ship whose mass AutoMass has just fitted; its mass, mass left and number of passes.
struct Fitted {
    std::int32_t mass, massLeft;
    int passes;
    std::string events;
};

Fitted fit(const ShipYard& yard, const std::function<void(ShipClass&)>& design) {
    const auto ship = yard.newShip();
    design(*ship);
    EventLog events(*ship);
    ship->g_bSaved = true;
    ship->g_bAutoMass = true;
    ship->weapChange();
    EXPECT_FALSE(ship->g_bSaved);
    EXPECT_TRUE(ship->g_bAutoMass);
    const std::string raised = events.take();
    return {ship->mass(), ship->g_iMassLeft,
            static_cast<int>(std::count(raised.begin(), raised.end(), '(')), raised};
}

}  // namespace

TEST(AutoMass, JumpsWhenFarAndStepsWhenNear) {
    const ShipYard yard;
    const auto withBallast = [&](std::int32_t mass, std::int32_t ballast, std::int32_t ftl = 1) {
        return fit(yard, [=](ShipClass& ship) {
            ship.mass(mass);
            ship.FTL(ftl);
            ship.addWeap("Ballast", ballast);
        });
    };
    // 50 leaves 25: a mass left of 11 takes 22 off at once, one of 10 goes in steps of 2.
    Fitted fitted = withBallast(50, 14);
    EXPECT_EQ(fitted.mass, 28);
    EXPECT_EQ(fitted.massLeft, 0);
    EXPECT_EQ(fitted.events, "( ( ) )");
    fitted = withBallast(50, 15);
    EXPECT_EQ(fitted.mass, 32);
    EXPECT_EQ(fitted.massLeft, 1);
    EXPECT_EQ(fitted.passes, 10);
    // From the other side.
    fitted = withBallast(50, 36);
    EXPECT_EQ(fitted.mass, 72);
    EXPECT_EQ(fitted.passes, 2);
    fitted = withBallast(50, 35);
    EXPECT_EQ(fitted.mass, 70);
    EXPECT_EQ(fitted.events, "( ( ( ( ( ( ( ( ( ( ( ) ) ) ) ) ) ) ) ) ) )");
    fitted = withBallast(50, 26);
    EXPECT_EQ(fitted.mass, 52);
    EXPECT_EQ(fitted.massLeft, 0);
    // Where it fits, it stays.
    EXPECT_EQ(withBallast(50, 25).passes, 1);
    EXPECT_EQ(withBallast(50, 24).passes, 1);
    EXPECT_EQ(withBallast(51, 25).massLeft, 1);
    // The jump uses the fraction of the hull without a drive.
    EXPECT_EQ(withBallast(50, 60, 0).mass, 79);
}

TEST(AutoMass, GivesUpWhereNothingFitsAndKeepsTheMass) {
    const ShipYard yard;
    for (const std::int32_t mass : {10, 50, 200}) {
        const Fitted fitted = fit(yard, [mass](ShipClass& ship) {
            ship.mass(mass);
            ship.addWeap("Sponge", 1);
        });
        EXPECT_EQ(fitted.mass, mass);
        EXPECT_TRUE(fitted.events.ends_with("( ) unsettled")) << fitted.events.size();
    }
    // No free mass at all: the jump divides by nothing.
    const Fitted unknownHull = fit(yard, [](ShipClass& ship) {
        ship.Hull(9);
        ship.mass(50);
        ship.addWeap("Ballast", 20);
    });
    EXPECT_EQ(unknownHull.mass, 50);
    // A jump out of 32 bits.
    const Fitted overflowing = fit(yard, [](ShipClass& ship) {
        ship.Hull(Merchant);
        ship.addWeap("Ballast", 2'000'000'000);
    });
    EXPECT_EQ(overflowing.mass, 2);
    EXPECT_TRUE(overflowing.events.ends_with(") unsettled"));
}

TEST(AutoMass, HasAThousandPassesAndNoMore) {
    const ShipYard yard;
    const auto with = [&](std::int32_t mass, const char* system) {
        return fit(yard, [=](ShipClass& ship) {
            ship.mass(mass);
            ship.addWeap(system, 1);
        });
    };
    // Two units too heavy, two units too light, and so on for ever.
    const Fitted wobbling = with(50, "Wobble");
    EXPECT_EQ(wobbling.passes, 1000);
    EXPECT_EQ(wobbling.mass, 50);
    EXPECT_TRUE(wobbling.events.ends_with("( ) unsettled"));
    // Many small steps are no circle.
    const Fitted slow = with(3000, "Slow");
    EXPECT_GT(slow.passes, 800);
    EXPECT_EQ(slow.massLeft, 1);
    EXPECT_TRUE(slow.events.ends_with(") )"));
}

TEST(AutoMass, ListenersMayChangeTheShipWhileItGivesUp) {
    const ShipYard yard;
    const auto ship = yard.newShip();
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

TEST(AutoMass, ATurnOfTheEventLoopMayChangeTheShip) {
    const ShipYard yard;
    ShipServices services = yard.services();
    std::function<void()> inTurn;
    services.eventLoopTurn = [&] {
        if (inTurn) {
            std::exchange(inTurn, {})();
        }
    };
    ShipClass ship(services);
    ship.mass(50);
    ship.addWeap("Ballast", 15);
    // The user takes all that was to be fitted off the ship.
    inTurn = [&] { ship.addWeap("Ballast", -15); };
    ship.g_bAutoMass = true;
    ship.weapChange();
    EXPECT_EQ(ship.mass(), 0);
    EXPECT_EQ(ship.g_iMassLeft, 0);
    // What a turn throws ends the act, and the ship is as it was.
    ship.g_bAutoMass = false;
    ship.mass(50);
    ship.g_bAutoMass = true;
    const std::string before = figures(ship);
    inTurn = [] { throw std::runtime_error("turn"); };
    EXPECT_THROW(ship.weapChange(), std::runtime_error);
    EXPECT_EQ(figures(ship), before);
    EXPECT_FALSE(ship.isBusy());
    ship.weapChange();
    EXPECT_EQ(ship.mass(), 0);
}

TEST(AutoMass, WritesOfListenersSettleTogetherWithIt) {
    const ShipYard yard;
    const auto ship = yard.newShip();
    ship->FTL(NoDrive);
    std::string shown = "2";
    // As the window does: it shows the mass, and what it shows it writes.
    const Connection window = ship->Recalculated.connect([&] {
        const std::string mass = std::to_string(ship->mass());
        if (mass != shown) {
            shown = mass;
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

TEST(AutoMass, GivesTheEventLoopATurnOncePerPass) {
    const ShipYard yard;
    ShipServices services = yard.services();
    int turns = 0;
    services.eventLoopTurn = [&] { ++turns; };
    ShipClass ship(services);
    ship.mass(50);
    ship.addWeap("Ballast", 15);
    EXPECT_EQ(turns, 0);
    ship.g_bAutoMass = true;
    ship.weapChange();
    EXPECT_EQ(turns, 10);
}
