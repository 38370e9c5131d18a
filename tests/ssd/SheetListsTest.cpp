#include "SheetLists.h"

#include "sheetWorld.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

std::string numbers(const PointList& list) {
    std::string text;
    for (const std::int16_t number : list) {
        text += std::to_string(number) + ' ';
    }
    return text;
}

}  // namespace

TEST(SheetLists, HoldEachPieceOfEachSystem) {
    SheetLists lists;
    EXPECT_EQ(lists.fillShipWeap(
                  rows({{"FP", "2"}, {"Damage Control Party", "2"}, {"Hidden", "1"}, {"F", "0"}})),
              3);
    EXPECT_EQ(lists.lstShipWeap, (std::vector<std::string>{"FP", "FP", "Damage Control Party",
                                                           "Damage Control Party", "Hidden"}));
    EXPECT_EQ(lists.fillShipWeap(rows({{"damage control party", "1"}})), 1);
    EXPECT_EQ(lists.lstShipWeap.size(), 1U);
    EXPECT_THROW(lists.fillShipWeap(rows({{"FP", "32768"}})), OverflowError);
    EXPECT_THROW(lists.fillShipWeap(rows({{"FP", ""}})), NotANumberError);
}

TEST(SheetLists, HoldThePointsOfTheMapOnceHoweverOftenFilled) {
    const MapFolder folder;
    const SSDMap map =
        folder.map("WEAP: (0,0,F)\nWEAP: (0,0,X)\nWEAP: (0,0,P)\nWEAP: (0,0,F)\nWEAP: (0,0,S)\n"
                   "WEAP: (0,0,A)\nWEAP: (0,0,B)\nWEAP: (0,0,FP)\nWEAP: (0,0,)\n"
                   "DCP: (0,0)\nDCP: (0,0)\nFIRECON: (0,0)\nFIRECON: (0,0)\nFIRECON: (0,0)");
    SheetLists lists;
    lists.fillPoints(map);
    lists.fillPoints(map);
    EXPECT_EQ(numbers(lists.lstWeaponsF), "0 3 ");
    EXPECT_EQ(numbers(lists.lstWeaponsP), "2 ");
    EXPECT_EQ(numbers(lists.lstWeaponsS), "4 ");
    EXPECT_EQ(numbers(lists.lstWeaponsA), "5 ");
    EXPECT_EQ(numbers(lists.lstWeaponsB), "6 ");
    EXPECT_EQ(numbers(lists.lstDCP), "1 0 ");
    EXPECT_EQ(numbers(lists.lstFirecons), "2 1 0 ");
}

TEST(SheetLists, GiveASystemTheFirstOfItsArcsThatHasAPoint) {
    const ShipYard yard(arcCatalogue);
    const auto ship = yard.newShip();
    const MapFolder folder;
    SheetLists lists;
    const auto pick = [&](std::string_view name) { return lists.pickWeapPoint(*ship, name); };

    lists.fillPoints(folder.map("WEAP: (0,0,S)\nWEAP: (0,0,P)\nWEAP: (0,0,F)\nWEAP: (0,0,F)"));
    EXPECT_EQ(pick("FP"), 2);
    EXPECT_EQ(pick("FP"), 3);
    EXPECT_EQ(pick("FP"), 1);
    EXPECT_EQ(pick("FP"), 0);
    EXPECT_EQ(numbers(lists.lstWeaponsS), "0 ");
    EXPECT_EQ(pick("unknown"), 0);

    lists.fillPoints(folder.map("WEAP: (0,0,F)\nWEAP: (0,0,S)\nWEAP: (0,0,A)\nWEAP: (0,0,B)"));
    EXPECT_EQ(pick("BAS"), 3);
    EXPECT_EQ(pick("BAS"), 2);
    EXPECT_EQ(pick("XSF"), 1);
    EXPECT_EQ(pick("XSF"), 0);
    EXPECT_EQ(numbers(lists.lstWeaponsF), "");
}
