#include "designWords.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(SizeNames, ChangeAtTheirBounds) {
    const struct {
        std::int32_t from, to;
        const char *shipClass, *designation;
    } ranges[] = {
        {-5, 1, "Escort", "Scout"},
        {2, 2, "Escort", "Courier"},
        {3, 4, "Escort", "Scout"},
        {5, 6, "Escort", "Corvette"},
        {7, 10, "Escort", "Frigate"},
        {11, 14, "Escort", "Destroyer"},
        {15, 18, "Escort", "Super Destroyer"},
        {19, 22, "Cruiser", "Light Cruiser"},
        {23, 26, "Cruiser", "Escort Cruiser"},
        {27, 36, "Cruiser", "Heavy Cruiser"},
        {37, 40, "Capital", "Battle Cruiser"},
        {41, 48, "Capital", "BattleShip"},
        {49, 70, "Capital", "BattleDreadnought"},
        {71, 100, "Capital", "SuperDreadnought"},
        {101, 2'000'000'000, "Supership", "SuperShip"},
    };
    for (const auto& range : ranges) {
        for (const std::int32_t mass : {range.from, range.to}) {
            EXPECT_EQ(classOf(mass), range.shipClass) << mass;
            EXPECT_EQ(designationOf(mass), range.designation) << mass;
        }
    }
}
