#include "drawSSD.h"

#include "Error.h"
#include "Sheet.h"
#include "SheetImages.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace fleetwright;

namespace {

/// Pictures of one pixel, whose colour tells the recording sheet their names.
class NamedImages {
public:
    SheetImages finder() {
        return {.file = [this](std::string_view name) { return picture(std::string(name)); },
                .system = [this](std::string_view name) -> const Raster& {
                    m_last = picture('[' + std::string(name) + ']');
                    return m_last;
                }};
    }

    const std::string& nameOf(const Raster& picture) const { return m_names[picture.pixel(0, 0)]; }

    std::set<std::string> missing;

private:
    Raster picture(const std::string& name) {
        if (missing.contains(name)) {
            throw FileError(name, "is missing");
        }
        Raster picture(1, 1);
        picture.pixel(0, 0) = static_cast<std::uint32_t>(m_names.size());
        m_names.push_back(name);
        return picture;
    }

    std::vector<std::string> m_names;
    Raster m_last;
};

/// Writes down what happens to it, a line each. It is 50 by 100 pixels large, has a border of 30
/// twips, and its letters are 10 pixels high.
class RecordingSheet : public Sheet {
public:
    explicit RecordingSheet(const NamedImages& images) : m_images(images) {}

    std::string log;
    int inkY = -1;  ///< where column 2 is black

    void setPicture(const Raster&) override { log += "picture\n"; }
    int scaleWidth() const override { return 50; }
    int scaleHeight() const override { return (m_height - border) / 20; }
    int controlHeight() const override { return m_height; }
    void setControlHeight(int twips) override {
        m_height = twips;
        log += "height " + std::to_string(twips) + '\n';
    }
    int twipsPerPixel() const override { return 20; }
    void paint(const Raster& picture, int x, int y) override {
        log += m_images.nameOf(picture) + ' ' + place({x, y}) + '\n';
    }
    void fill(Pen from, Pen to, std::uint32_t colour) override {
        EXPECT_EQ(colour, white);
        log += "fill " + place(from) + ' ' + place(to) + '\n';
    }
    Pen print(std::string_view text, Pen pen) override {
        log += "print " + place(pen) + '\n';
        printed = text;
        std::replace(printed.begin(), printed.end(), '\r', '\n');
        return {0, pen.y + textHeight(text)};
    }
    int textHeight(std::string_view text) const override {
        return 10 * static_cast<int>(std::count(text.begin(), text.end(), '\r'));
    }
    std::uint32_t pixel(int x, int y) const override { return x == 2 && y == inkY ? black : white; }
    void refresh() override { log += "refresh\n"; }

    std::string printed;

private:
    static constexpr int border = 30;

    static std::string place(Pen pen) {
        return std::to_string(pen.x) + ',' + std::to_string(pen.y);
    }

    const NamedImages& m_images;
    int m_height = 100 * 20 + border;
};

const std::string mapEnd = "DAMROW: (1,2)\nFTL: (3,4)\nTHRUST: (5,6)\n";

/// Draws a ship from its texts, its file and its list of systems on a map.
struct Drawing {
    ShipYard yard{arcCatalogue};
    MapFolder folder;
    NamedImages images;
    RecordingSheet sheet{images};
    SheetLists lists;
    std::string shipFile;
    std::string damagePoints = "12";
    std::string parties = "0";
    std::string fireControls = "0";

    void draw(const std::string& mapText, const std::vector<ListView::Row>& systems) {
        const SSDMap map = folder.map(mapText + mapEnd);
        const auto ship = yard.loaded(shipFile);
        lists.fillShipWeap(systems);
        lists.fillPoints(map);
        drawSSD(sheet, images.finder(), map, lists,
                {.txtDP = damagePoints,
                 .txtDCP = parties,
                 .txtFireCon = fireControls,
                 .txtShipName = "Magpie",
                 .txtDesigner = "You",
                 .txtCost = "77",
                 .ship = *ship});
    }

    bool areListsEmpty() const {
        return lists.lstShipWeap.empty() && lists.lstWeaponsF.empty() &&
               lists.lstWeaponsP.empty() && lists.lstWeaponsS.empty() &&
               lists.lstWeaponsA.empty() && lists.lstWeaponsB.empty() && lists.lstDCP.empty() &&
               lists.lstFirecons.empty();
    }
};

/// The part of a log in front of the text block.
std::string painted(const Drawing& drawing) {
    return drawing.sheet.log.substr(0, drawing.sheet.log.find("height"));
}

}  // namespace

TEST(DrawSSD, PaintsInItsOrderAndCoversWhatIsLeft) {
    Drawing drawing;
    drawing.shipFile = "Mass: 50\nThrust: 4\nFTL: Tug\nStreamlining: Full\nArmor: Level 1\n";
    drawing.damagePoints = " 12 ";
    drawing.parties = "2";
    drawing.fireControls = "1";
    drawing.sheet.inkY = 190;
    drawing.draw("SIZE: 18\nWEAP: (10,0,F)\nWEAP: (11,0,P)\nWEAP: (12,0,P)\nWEAP: (13,0,S)\n"
                 "WEAP: (14,0,A)\nWEAP: (15,0,A)\nWEAP: (16,0,B)\nWEAP: (17,0,S)\n"
                 "WEAP: (18,0,P)\nWEAP: (19,0,X)\nWEAP: (20,0,F)\n"
                 "DCP: (30,0)\nDCP: (31,0)\nDCP: (32,0)\nDCP: (33,0)\nDCP: (34,0)\n"
                 "FIRECON: (40,0)\nFIRECON: (41,0)\nFIRECON: (42,0)\n",
                 rows({{"FP", "2"}, {"Hidden", "2"}, {"Damage Control Party", "1"}, {"BAS", "2"}}));
    EXPECT_EQ(drawing.sheet.log, "escort12.gif 1,2\n"
                                 "[BAS] 16,0\nrefresh\n"
                                 "[BAS] 14,0\nrefresh\n"
                                 "[Damage Control Party] 30,0\nrefresh\n"
                                 "refresh\nrefresh\n"
                                 "[FP] 10,0\nrefresh\n"
                                 "[FP] 20,0\nrefresh\n"
                                 "[Damage Control Party] 33,0\n"
                                 "[Damage Control Party] 34,0\n"
                                 "ssdfc.gif 42,0\n"
                                 "thrust4.gif 5,6\n"
                                 "ftltug.gif 3,4\n"
                                 "[BLANK] 18,0\n[BLANK] 12,0\n[BLANK] 11,0\n"
                                 "[BLANK] 17,0\n[BLANK] 13,0\n"
                                 "[BLANK] 15,0\n"
                                 "[BLANK] 31,0\n[BLANK] 32,0\n"
                                 "fcblank.gif 40,0\nfcblank.gif 41,0\n"
                                 "height 4445\n"
                                 "fill 0,100 50,220\n"
                                 "print 10,100\n"
                                 "height 4100\n");
    EXPECT_EQ(drawing.sheet.printed,
              "\nName: Magpie\nDesigner: You\nPoints: 77\nStreamlining: Full\nArmor: Level 1\n\n"
              "=================================\nHidden\nHidden\n\n\n");
    EXPECT_TRUE(drawing.areListsEmpty());
}

TEST(DrawSSD, GivesAContestedPointToTheLowerSystem) {
    Drawing drawing;
    drawing.draw("WEAP: (10,0,F)\nWEAP: (11,0,P)\n", rows({{"F", "1"}, {"XSF", "1"}, {"PS", "1"}}));
    EXPECT_EQ(painted(drawing), "escort12.gif 1,2\n[PS] 11,0\nrefresh\n[XSF] 10,0\nrefresh\n"
                                "[F] 10,0\nrefresh\nthrust2.gif 5,6\nftl.gif 3,4\n");
}

TEST(DrawSSD, TakesTheTrackFromTheSizeOfTheMap) {
    const std::pair<const char*, const char*> cases[] = {
        {"18", "escort7.gif"}, {"19", "cruz7.gif"}, {"36", "cruz7.gif"},
        {"37", "cap7.gif"},    {"100", "cap7.gif"}, {"101", "thrust2.gif"}};
    for (const auto& [size, first] : cases) {
        Drawing drawing;
        drawing.damagePoints = "7";
        drawing.draw("SIZE: " + std::string(size) + '\n', {});
        EXPECT_EQ(drawing.sheet.log.substr(0, drawing.sheet.log.find(' ')), first) << size;
    }
}

TEST(DrawSSD, ShowsDrivesAsTheHullHasThem) {
    Drawing base;
    base.shipFile = "Type: Starbase\nSystem: F, 1\nThrust: 3\nFTL: None\n";
    base.draw("", {});
    EXPECT_EQ(painted(base), "escort12.gif 1,2\n[BLANK] 5,6\nblank.gif 3,4\n");
    EXPECT_EQ(base.sheet.printed, "\nName: Magpie\nDesigner: You\nPoints: 77\n\n\n");

    Drawing odd;
    odd.shipFile = "Thrust: 40000\n";
    EXPECT_THROW(odd.draw("", {}), OverflowError);
    odd.shipFile = "Thrust: -3\n";
    odd.images.missing = {"thrust-3.gif"};
    EXPECT_THROW(odd.draw("", {}), FileError);
}

TEST(DrawSSD, TrimsUpToInkOrTheTop) {
    const std::pair<int, const char*> cases[] = {{-1, "height 300\n"},   {0, "height 300\n"},
                                                 {1, "height 320\n"},    {99, "height 2280\n"},
                                                 {160, "height 3500\n"}, {161, "height 300\n"}};
    for (const auto& [ink, last] : cases) {
        Drawing drawing;
        drawing.sheet.inkY = ink;
        drawing.draw("", {});
        EXPECT_EQ(drawing.sheet.log.substr(drawing.sheet.log.rfind("height")), last) << ink;
    }
}

TEST(DrawSSD, FailsWhereTheShipAsksForMoreThanThereIs) {
    const auto fails = [](const auto& change, const std::string& map,
                          const std::vector<ListView::Row>& systems) {
        Drawing drawing;
        change(drawing);
        try {
            drawing.draw(map, systems);
            return std::string("drawn");
        } catch (const Error& error) {
            return std::string(error.what());
        }
    };
    const auto asIs = [](Drawing&) {};
    const std::string tooFew = "the map has too few points for the ship's ";
    EXPECT_EQ(fails(asIs, "DCP: (1,1)\n", rows({{"Damage Control Party", "2"}})),
              tooFew + "extra damage control parties");
    EXPECT_EQ(fails([](Drawing& drawing) { drawing.parties = "2"; }, "DCP: (1,1)\n", {}),
              tooFew + "damage control parties");
    EXPECT_EQ(fails([](Drawing& drawing) { drawing.fireControls = "1"; }, "", {}),
              tooFew + "fire controls");
    EXPECT_EQ(fails(asIs, "", rows({{"F", "1"}})), "the map has no such point: 0");
    EXPECT_EQ(fails([](Drawing& drawing) { drawing.images.missing = {"escort12.gif"}; }, "", {}),
              "is missing");
    EXPECT_EQ(fails([](Drawing& drawing) { drawing.images.missing = {"[F]"}; }, "WEAP: (1,1,F)\n",
                    rows({{"F", "1"}})),
              "is missing");
    EXPECT_EQ(fails([](Drawing& drawing) { drawing.parties = "many"; }, "", {}),
              "\"many\" is no number");
    EXPECT_EQ(fails([](Drawing& drawing) { drawing.fireControls = "32768"; }, "", {}),
              "number too large");
    EXPECT_EQ(fails([](Drawing& drawing) { drawing.parties = "-4"; }, "", {}), "drawn");
}
