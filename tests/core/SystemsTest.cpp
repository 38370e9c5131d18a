#include "testShip.h"

#include "Error.h"

#include <gtest/gtest.h>

using namespace fleetwright;

using SystemsTest = NewShip;

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
    text[0] = '4';
    text[1] = '2';
    text[2] = '\0';
    return 0;
}

}  // namespace

TEST_F(SystemsTest, AreEvaluatedCostFirstForAllPiecesTogether) {
    ShipServices services = yard.services();
    services.formula = recordCall;
    ShipClass recorded(services);
    recorded.mass(20);
    recorded.addWeap("Gun", 3);
    g_evaluated.clear();
    recorded.Armor(2);
    EXPECT_EQ(g_evaluated, "20 1 1 2 60 3 6 * amount|20 1 1 2 60 3 2 * amount|");
    g_evaluated.clear();
    EXPECT_EQ(recorded.previewWeapCost("Screen", 5), 1);
    std::string formula = "mass";
    EXPECT_EQ(recorded.weapCalc(formula), 1);
    EXPECT_EQ(g_evaluated, "20 1 1 2 60 5 3 * mass * amount|20 1 1 2 60 1 mass|");
    recorded.addWeap("Gun", -3);
    g_evaluated.clear();
    recorded.weapChange();
    EXPECT_EQ(g_evaluated, "");
}

TEST_F(SystemsTest, AddUpToCostAndMass) {
    ship->mass(40);
    EXPECT_EQ(figures(*ship), "200 20 4 3 3 20");
    EXPECT_TRUE(ship->addWeap("Gun", 2));
    EXPECT_TRUE(ship->addWeap("Screen", 1));
    EXPECT_TRUE(ship->addWeap("Gun", 1));
    EXPECT_EQ(figures(*ship), "338 20 4 3 3 10");
    EXPECT_EQ(ship->previewWeapMass("Screen", 2), 8);
    EXPECT_TRUE(ship->addWeap("Gun", -4));
    EXPECT_EQ(amountOf(*ship, "Gun"), -1);
    EXPECT_EQ(figures(*ship), "320 20 4 3 3 16");
}

TEST_F(SystemsTest, AnEvaluatorMayRewriteTheText) {
    ShipServices services = yard.services();
    services.formula = writeIntoText;
    ShipClass rewritten(services);
    rewritten.previewWeapCost("Gun", 1);
    WeapRec record;
    std::int32_t index = rewritten.weapNameToIndex("Gun");
    rewritten.listWeap(index, record);
    EXPECT_EQ(record.costform, "42");
    EXPECT_EQ(record.massform, "2 * amount");
    std::string formula = "thrust";
    rewritten.weapCalc(formula);
    EXPECT_EQ(formula, "42");
}

TEST_F(SystemsTest, UnknownNamesAreReported) {
    EventLog events(*ship);
    EXPECT_FALSE(ship->addWeap("gun", 1));
    EXPECT_EQ(events.take(), "unknown ( )");
    EXPECT_EQ(ship->previewWeapCost("Nothing", 1), 0);
    EXPECT_EQ(ship->previewWeapMass("", 1), 0);
    EXPECT_EQ(events.take(), "unknown unknown");
    EXPECT_EQ(ship->weapNameToIndex("CATEGORY"), 0);
    EXPECT_EQ(ship->weapNameToIndex("cloaking field"), -1);
}

TEST_F(SystemsTest, CloakStandsAloneOnMerchantHulls) {
    for (const std::int32_t hull : {1, 2, 3, 4, 5, 6}) {
        const auto other = yard.newShip();
        other->Hull(hull);
        EventLog events(*other);
        const bool isMerchantHull = hull == 2 || hull == 5;
        EXPECT_TRUE(other->addWeap("Cloaking Field", 1));
        events.take();
        EXPECT_EQ(other->addWeap("Gun", 1), !isMerchantHull);
        EXPECT_EQ(events.take(), isMerchantHull ? "cloak" : "( )");
        EXPECT_EQ(other->addWeap("Cloaking Field", 1), !isMerchantHull);
        EXPECT_EQ(other->addWeap("Nothing", 1), false);
        EXPECT_EQ(other->addWeap("Cloaking Field", -1), !isMerchantHull);
    }
    ship->Hull(Merchant);
    ship->addWeap("Gun", 1);
    EXPECT_FALSE(ship->addWeap("Cloaking Field", 1));
    ship->addWeap("Gun", -1);
    EXPECT_TRUE(ship->addWeap("Cloaking Field", 1));
    ship->Hull(Warship);
    ship->addWeap("Gun", 1);
    ship->Hull(SpaceStation);
    EXPECT_FALSE(ship->addWeap("Gun", -1));
    EXPECT_EQ(amountOf(*ship, "Gun"), 1);
}

TEST(SystemsOfOtherCatalogues, WithoutACloakRecordTheFirstOneStandsForIt) {
    const ShipYard yard("Gun,1,1,BEAM,BEAM,F,a.gif\nShell,1,1,BEAM,BEAM,F,b.gif\n");
    const auto ship = yard.newShip();
    ship->Hull(Merchant);
    EXPECT_TRUE(ship->addWeap("Shell", 1));
    EXPECT_TRUE(ship->addWeap("Gun", 1));
    EXPECT_FALSE(ship->addWeap("Shell", 1));
}

TEST(SystemsOfOtherCatalogues, AreListedToTheLast) {
    const ShipYard yard("a,1,2,3,4,F,x.gif\nb,1,2,3,4,F,y.gif\nc,5,6,7,8,A,z.gif");
    const auto ship = yard.newShip();
    WeapRec record;
    std::int32_t index = 0;
    EXPECT_TRUE(ship->listWeap(index, record));
    EXPECT_TRUE(ship->listWeap(index, record));
    EXPECT_FALSE(ship->listWeap(index, record));
    EXPECT_EQ(index, 3);
    EXPECT_EQ(std::string(record.name) + std::string(record.massform) +
                  std::string(record.costform) + std::string(record.arclist) +
                  std::string(record.icon),
              "c56Az.gif");
    EXPECT_THROW(ship->listWeap(index, record), std::out_of_range);
}
