#include "ShipFileCheck.h"

#include "faults.h"
#include "testShip.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

std::string faultsOf(std::string_view text) {
    static const ShipYard yard;
    const auto ship = yard.loaded(text);
    if (!ship->fileFault()) {
        ship->weapChange();
    }
    return textOf(checkShipFile(text, *ship, ship->fileFault()));
}

}  // namespace

TEST(ShipFileCheck, FindsNothingInASoundFile) {
    EXPECT_EQ(faultsOf("Ship Name: A\r\nDesigner Name: B\r\n\r\nMass: 50\r\nThrust: 8\r\n"
                       "Type: Warship\r\nStreamlining: Partial\r\nArmor: Level 2\r\nFTL: None\r\n"
                       "System: Gun, 2\r\n"),
              "");
    EXPECT_EQ(faultsOf("Type: Starbase\nMass: 10\nThrust: 0\nFTL: None\nSystem: Gun, 1"), "");
}

TEST(ShipFileCheck, NamesEachFaultWithItsLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"ship name: x", "1: nobody reads the key \"ship name\"\n"},
        {"no colon", "1: nobody reads the key \"no colon\"\n"},
        {"Mass: 10\n\nMass: 12", "3: a second line \"Mass\": also line 1\n"},
        {"Ship Name: A: B", "1: what stands behind the second colon is lost\n"},
        {"Mass: 1", "1: mass 1 is below the smallest, 2\n"},
        {"Thrust: 9", "1: thrust 9 is outside 0 to 8\n"},
        {"Thrust: fast\nMass: slow", "1: \"fast\" is no number\n2: \"slow\" is no number\n"},
        {"Type: Dreadnought", "1: unknown hull type \"Dreadnought\"\n"},
        {"FTL: normal", "1: unknown FTL drive \"normal\"\n"},
        {"Streamlining: None", "1: unknown streamlining \"None\"\n"},
        {"Armor: Level 3", "1: unknown armor level \"3\"\n"},
        {"Mass: 50\nSystem: Laser, 1", "2: unknown system \"Laser\"\n"},
        {"Mass: 50\nSystem: CATEGORY, 1", "2: unknown system \"CATEGORY\"\n"},
        {"Mass: 50\nSystem: Gun, 0", "2: amount 0 is below 1\n"},
        {"Mass: 50\nSystem: Gun", "2: \"Gun\" is no number\n"},
        {"Mass: 10\nSystem: Gun, 3",
         "0: overloaded: the systems are 1 mass units too heavy for the hull\n"},
        {"Mass: 2000000000", "0: number too large\n"},
        {"Mass: 500000000\nThrust: 8\nSystem: Giant, 1", "3: number too large\n"},
        {"Mass: 10.5\nThrust: 3.5", "1: \"10.5\" is read as 10\n2: \"3.5\" is read as 4\n"},
        {"Mass: 50\nSystem: Gun, 3, 4", "2: what stands behind the second comma is lost\n"},
        {"Foo:Mass:50\n\n", "1: nobody reads the key \"Foo\"\n"
                            "2: an empty line goes on with what was left before, \"Mass:50\"\n"},
        {"Mass: 2000000000\nSystem: Laser, 1",
         "2: unknown system \"Laser\"\n2: number too large\n"},
        {"Type: Merchant\nMass: 90\nSystem: Cloaking Field, 1\nSystem: Cloaking Field, 1",
         "4: a merchant hull cannot have a cloak and other systems\n"},
        {"Type: Starbase\nMass: 10\nThrust: 4\nStreamlining: Full\nFTL: Tug",
         "3: a base has no thrust\n4: a base has no streamlining\n5: a base has no FTL drive\n"},
        {"Type: Merchant\nMass: 90\nSystem: Cloaking Field, 1\nSystem: Gun, 0",
         "4: amount 0 is below 1\n4: a merchant hull cannot have a cloak and other systems\n"},
        {"Mass: 90\nSystem: Cloaking Field, 1\nSystem: Gun, 1\nType: Merchant",
         "2: a merchant hull cannot have a cloak and other systems\n"
         "0: overloaded: the systems are 2 mass units too heavy for the hull\n"},
        {"Type: Merchant\nMass: 400\nSystem: Gun, 1\nSystem: Cloaking Field, 1",
         "4: a merchant hull cannot have a cloak and other systems\n"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(faultsOf(text), expected) << text;
    }
}
