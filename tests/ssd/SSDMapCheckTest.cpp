#include "SSDMapCheck.h"

#include "faults.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// A map without a fault, to which a test adds one.
const std::string sound = "# hull\r\nIMAGE: ship.gif\r\nSIZE: 18\r\nDAMROW: (1,2)\r\n"
                          "FTL: (1,2)\r\nTHRUST: (1,2)\r\n";

std::string faultsOf(const std::string& text) {
    const MapFolder folder;
    folder.writeFile("shipimages/Ship.gif", "");
    return textOf(checkMapFile(text, folder.path()));
}

}  // namespace

TEST(SSDMapCheck, FindsNothingInASoundMap) {
    EXPECT_EQ(faultsOf(sound), "");
    EXPECT_EQ(faultsOf(sound + "weap : (1, 2, f)\r\nWEAP: (1,2,B)\r\nDCP: (1,2)\r\nDCP: (3,4)\r\n"
                               "FIRECON: (3,-4)\r\n"),
              "");
}

TEST(SSDMapCheck, NamesEachFaultWithItsLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"abc: 1\n # x\nWEAP (1,2,F)",
         "7: nobody reads the key \"abc\"\n8: nobody reads the key \"# x\"\n"
         "9: nobody reads the key \"WEAP (1,2,F)\"\n"},
        {"Size: 36\nSIZE: 36", "7: a second line \"Size\": also line 3\n"
                               "8: a second line \"SIZE\": also line 7\n"},
        {"DCP: (1,x)\nDCP: (\nDCP: (1,40000)\nDCP: ()",
         "7: \"x\" is no number\n8: \"(\" is too short for a point\n9: number too large\n"
         "10: \"\" is no number\n"},
        {"DCP: 10,20", "7: no parentheses around \"10,20\", which is read as \"0,2\"\n"},
        {"WEAP: (1.5,2,F,S)", "7: \"1.5\" is read as 2\n"
                              "7: what stands behind the third comma is lost\n"},
        {"FIRECON: (1,2.0)", "7: \"2.0\" is read as 2\n"},
    };
    for (const auto& [lines, expected] : cases) {
        EXPECT_EQ(faultsOf(sound + lines), expected) << lines;
    }
    std::string many = sound;
    for (int i = 0; i < 32'769; ++i) {
        many += "DCP: (1,2)\n";
    }
    EXPECT_EQ(faultsOf(many), "32774: more than 32767 lines \"DCP\"\n");
}

TEST(SSDMapCheck, MissesAnOutline) {
    EXPECT_EQ(faultsOf("IMAGE: other.gif\n"), "1: there is no outline \"other.gif\"\n");
    EXPECT_EQ(faultsOf("IMAGE:\nSIZE:"), "1: there is no outline \"\"\n2: \"\" is no number\n");
    EXPECT_EQ(faultsOf(""), "0: no line \"IMAGE\"\n");
}
