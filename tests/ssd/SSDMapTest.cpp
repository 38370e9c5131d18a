#include "SSDMap.h"

#include "sheetWorld.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// "x,y,arc" of each weapon point.
std::string weaponPoints(const SSDMap& map) {
    std::string text;
    for (std::int16_t i = 0; i < map.iWeapNDX; ++i) {
        text += std::to_string(map.getWeapPntX(i)) + ',' + std::to_string(map.getWeapPntY(i)) +
                ',' + map.getWeapPntArc(i) + ' ';
    }
    return text;
}

/// Why a map does not load: "line: fault", or nothing.
std::string faultOf(std::string_view text) {
    const MapFolder folder;
    folder.write("x", text);
    SSDMap map(folder.path());
    try {
        map.ImageFile("x");
        return "";
    } catch (const Error& error) {
        EXPECT_EQ(map.fileFault()->text, error.what());
        return std::to_string(map.fileFault()->line) + ": " + map.fileFault()->text;
    }
}

}  // namespace

TEST(SSDMap, ReadsEveryKindOfLine) {
    const MapFolder folder;
    const SSDMap map = folder.map("# hull outline\r\nIMAGE: outline1.gif\r\nSIZE: 18\r"
                                  "WEAP: (120,340,F)\nWEAP: (168,340,P)\r\n\r\nDCP: (20,60)\r\n"
                                  "FIRECON: (21,100)\r\nFIRECON: (22,101)\r\nDAMROW: (10,400)\r\n"
                                  "FTL: (200,40)\r\nTHRUST: (201,90)");
    EXPECT_EQ(map.sDisplayName, "test");
    EXPECT_EQ(map.sImgFile, folder.path().string() + "/shipimages/OUTLINE1.GIF");
    EXPECT_EQ(map.iMaxMass, 18);
    EXPECT_EQ(weaponPoints(map), "120,340,F 168,340,P ");
    EXPECT_EQ(map.iDCPNDX, 1);
    EXPECT_EQ(map.getDCPPntX(0), 20);
    EXPECT_EQ(map.getDCPPntY(0), 60);
    EXPECT_EQ(map.iFIRECONNDX, 2);
    EXPECT_EQ(map.getFIRECONPntX(1), 22);
    EXPECT_EQ(map.getFIRECONPntY(0), 100);
    EXPECT_EQ(map.getDAMPntX(), 10);
    EXPECT_EQ(map.getDAMPntY(), 400);
    EXPECT_EQ(map.getFTLPntX(), 200);
    EXPECT_EQ(map.getFTLPntY(), 40);
    EXPECT_EQ(map.getThrustPntX(), 201);
    EXPECT_EQ(map.getThrustPntY(), 90);
}

TEST(SSDMap, HasNothingThatItsFileDoesNotSay) {
    const MapFolder folder;
    const SSDMap map = folder.map("# nothing\n\n # size: 3\nABC: 1\nno colon\n#SIZE: 9\n");
    EXPECT_EQ(map.iMaxMass, 0);
    EXPECT_EQ(map.sImgFile, "");
    EXPECT_EQ(map.iWeapNDX + map.iDCPNDX + map.iFIRECONNDX, 0);
    EXPECT_EQ(map.getDAMPntX(), 0);
    EXPECT_THROW(map.getWeapPntX(0), Error);
    EXPECT_THROW(map.getWeapPntArc(-1), Error);
    EXPECT_THROW(map.getDCPPntY(0), Error);
    EXPECT_THROW(map.getFIRECONPntX(0), Error);
}

TEST(SSDMap, ReadsLooselyWrittenLines) {
    const MapFolder folder;
    const auto weapons = [&folder](const char* text) { return weaponPoints(folder.map(text)); };
    EXPECT_EQ(folder.map("  sIzE  :36  ").iMaxMass, 36);
    EXPECT_EQ(folder.map("SIZE: 18\nSIZE: +19.5").iMaxMass, 20);
    EXPECT_EQ(folder.map("SIZE: 18.5").iMaxMass, 18);
    EXPECT_EQ(folder.map("SIZE: -32768").iMaxMass, -32768);
    EXPECT_EQ(folder.map("\tSIZE: 3").iMaxMass, 0);
    EXPECT_EQ(weapons("weap: (1,2,f)"), "1,2,F ");
    EXPECT_EQ(weapons("WEAP: ( -1 , 2.5 ,  a )"), "-1,2,A ");
    EXPECT_EQ(weapons("WEAP: (1,2)"), "1,2,2 ");
    EXPECT_EQ(weapons("WEAP: (7)"), "7,7,7 ");
    EXPECT_EQ(weapons("WEAP: (1,2,)"), "1,2, ");
    EXPECT_EQ(weapons("WEAP: (1,2,F,S)"), "1,2,F ");
    EXPECT_EQ(weapons("WEAP: (1,2,é:è)"), "1,2,É:È ");
    EXPECT_EQ(weapons("WEAP: 10,20,FA"), "0,20,F ");
    const SSDMap bare = folder.map("DCP: 10,20\nDCP: é1,2ü\nDAMROW: (1,1)\nDAMROW: (2,3)");
    EXPECT_EQ(bare.getDCPPntX(0), 0);
    EXPECT_EQ(bare.getDCPPntY(0), 2);
    EXPECT_EQ(bare.getDCPPntX(1), 1);
    EXPECT_EQ(bare.getDAMPntY(), 3);
}

TEST(SSDMap, SaysWhyAndWhereAFileDoesNotLoad) {
    EXPECT_EQ(faultOf("SIZE: 3\n\nSIZE"), "3: \"\" is no number");
    EXPECT_EQ(faultOf("SIZE: 32768"), "1: number too large");
    EXPECT_EQ(faultOf("SIZE: 32767.5"), "1: number too large");
    EXPECT_EQ(faultOf("SIZE: 1e1"), "1: \"1e1\" is no number");
    EXPECT_EQ(faultOf("DCP:"), "1: \"\" is too short for a point");
    EXPECT_EQ(faultOf("DCP: é"), "1: \"é\" is too short for a point");
    EXPECT_EQ(faultOf("DCP: ()"), "1: \"\" is no number");
    EXPECT_EQ(faultOf("DCP: (1)"), "1: \"\" is no number");
    EXPECT_EQ(faultOf("DCP: (1,2)\nFTL: (1,2,3)"), "2: \"2,3\" is no number");
    EXPECT_EQ(faultOf("WEAP: (1,x,F)"), "1: \"x\" is no number");
    EXPECT_EQ(faultOf("WEAP: (1,,F)"), "1: \"\" is no number");
    EXPECT_EQ(faultOf("THRUST: (1,-32769)"), "1: number too large");

    std::string lines;
    for (int i = 0; i < 32'767; ++i) {
        lines += "DCP:(1,2)\n";
    }
    EXPECT_EQ(faultOf(lines), "");
    EXPECT_EQ(faultOf(lines + "DCP:(1,2)"), "32768: number too large");

    SSDMap map("nowhere");
    EXPECT_THROW(map.ImageFile("x"), FileError);
    EXPECT_EQ(map.fileFault()->text, "cannot be read: No such file or directory");
    EXPECT_STREQ(InvalidMapError().what(), "Not a valid Map file!!!");
}

TEST(SSDMap, FindsFilesWhateverTheCaseOfTheirNames) {
    const MapFolder folder;
    folder.writeFile("maps/Long Ship.MAP", "IMAGE: sub\\long.GIF\nSIZE: 7");
    folder.writeFile("shipimages/Sub/Long.gif", "");
    SSDMap map(folder.path());
    map.ImageFile("Long Ship");
    EXPECT_EQ(map.iMaxMass, 7);
    EXPECT_EQ(outlineFile(map), folder.path() / "shipimages" / "Sub" / "Long.gif");
    map = folder.map("IMAGE: none.gif");
    EXPECT_EQ(outlineFile(map), folder.path() / "shipimages" / "NONE.GIF");
}
