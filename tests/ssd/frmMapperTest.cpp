#include "frmMapper.h"

#include "Error.h"
#include "fakeServices.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// The window on a desktop that writes down what is shown, with outlines and pictures in memory.
class Mapper : public testing::Test, protected PictureEncoder {
protected:
    Mapper() {
        carry({{"F", "1"}});
        const std::string points = "WEAP: (3,8,F)\nWEAP: (10,8,P)\nWEAP: (17,8,S)\nDCP: (3,15)\n"
                                   "FIRECON: (30,2)\nDAMROW: (3,2)\nFTL: (30,8)\nTHRUST: (30,14)\n";
        for (const auto& [name, head] : {std::pair("Small", "SIZE: 10\nIMAGE: SHIP.BMP\n"),
                                         {"Wide", "SIZE: 100\nIMAGE: WIDE.BMP\n"},
                                         {"Light", "SIZE: 4\nIMAGE: ship.bmp\n"},
                                         {"Bare", "SIZE: 10\n"}}) {
            folder.write(std::string("maps/") + name + ".map", head + points);
        }
        outline("SHIP") = Raster(400, 100);
        outline("WIDE") = Raster(2185, 50);
        maps = loadMaps(folder.path());
    }

    void carry(std::initializer_list<std::pair<const char*, const char*>> aboard) {
        systems.clear();
        for (const auto& [name, count] : aboard) {
            systems.add(name, name, count);
        }
    }
    void drawOn(const std::string& map) {
        window.cboMapSelection.type(map);
        window.cmdDrawIt.press();
    }
    /// What the window shows: sizes of the sheet, of its box and of the window, what can be
    /// pressed, and the messages since the last look.
    std::string look() {
        const Raster& sheet = window.picSSD.picture();
        const Place& box = window.picSSD.place();
        return std::to_string(sheet.width()) + 'x' + std::to_string(sheet.height()) + ' ' +
               std::to_string(box.width) + 'x' + std::to_string(box.height) + ' ' +
               std::to_string(window.width()) + 'x' + std::to_string(window.height()) +
               (window.cmdDrawIt.isEnabled() ? " draw" : "") +
               (window.cmdSave.isEnabled() ? " save " : " ") + std::exchange(desktop.log, {});
    }
    Raster& outline(const std::string& name) {
        return pictures.files[(folder.path() / "shipimages" / (name + ".BMP")).string()];
    }
    std::string encode(const Raster& picture, const std::string& format) override {
        return format + ' ' + std::to_string(picture.width()) + 'x' +
               std::to_string(picture.height());
    }

    TemporaryFolder folder;
    ShipYard yard{arcCatalogue};
    std::unique_ptr<ShipClass> ship = yard.loaded("Mass: 10\nArmor: Level 2\n");
    Form main{{.name = "main"}};
    ListView systems{main, {.name = "systems"}};
    std::string parties = "1";
    SSDMaps maps;
    ChoosingDesktop desktop;
    PicturesByName pictures;
    const Raster blank = box(5, 5, Raster::white), coloured = box(5, 5, 22);
    const SheetImages images{[](std::string_view name) {
                                 return box(name.starts_with("escort") ? 20 : 6, 4,
                                            name.starts_with('s') ? 18 : 5);
                             },
                             [this](std::string_view name) -> const Raster& {
                                 return name == SheetImages::blank ? blank : coloured;
                             }};
    frmMapper window{{folder.path(), desktop, pictures, *this, images, maps, systems, [this] {
                          const std::string cost = std::to_string(ship->g_lCost);
                          return SheetShip{"5", parties, "1", "Magpie", "Åsa", cost, *ship};
                      }}};
};

const std::string noOutline = "Couldn't load image file!!!/Error loading image file critical; ";
const std::string firstLook = "0x0 4635x120 5055x1335 draw save ";
// Once it is painted: the strip and its margin are higher than the window was drawn.
const std::string emptyLook = "0x0 4635x120 5055x1355 draw save ";
const std::string drawnLook = "400x188 6000x2820 6305x4055 save ";

TEST_F(Mapper, OffersTheMapsThatFitAndBeginsAnewEachTime) {
    window.show();
    EXPECT_EQ(window.cboMapSelection.items(), (std::vector<std::string>{"Bare", "Small", "Wide"}));
    window.cmdDrawIt.press();
    EXPECT_EQ(look(), firstLook);
    window.paint();
    EXPECT_EQ(look(), emptyLook);
    drawOn("small");
    window.setState(WindowState::Maximized);
    window.unload();
    carry({{"Damage Control Party", "9"}});
    window.show();
    EXPECT_EQ(look(), emptyLook);
    EXPECT_EQ(window.state(), WindowState::Normal);
    carry({{"F", "9"}});
    window.show();  // open already: it only comes to the front
    EXPECT_EQ(window.cboMapSelection.items().size(), 3U);
    window.unload();
    carry({{"F", "32768"}});
    window.show();
    EXPECT_EQ(look(), emptyLook + "The ship has too many systems for a sheet!!!/"
                                  "SSD Creation Error critical; ");
    EXPECT_TRUE(window.cboMapSelection.items().empty());
}

TEST_F(Mapper, DrawsAndShowsEachSystemAsItComes) {
    outline("SHIP") = box(120, 24, 14);
    carry({{"FP", "2"}, {"Listed", "1"}});
    parties = "0";
    window.show();
    std::string seen;
    const Connection repainted = window.RepaintWanted.connect(
        [&] { seen += std::to_string(window.picSSD.picture().height()) + ' '; });
    const Connection painted = window.picSSD.Painted.connect(
        [&](int first, int end) { seen += std::to_string(first - end) + ' '; });
    drawOn("small");
    EXPECT_EQ(seen, "-24 24 -24 24 -24 24 -164 ");
    expectGolden(window.picSSD.picture(), "ship.txt");
}

TEST_F(Mapper, TakesItsSizeFromTheSheetAndKeepsIt) {
    window.show();
    drawOn("Small");
    EXPECT_EQ(look(), drawnLook);
    window.resize(300, 5000);
    EXPECT_EQ(look(), "400x188 6000x2820 4940x5000 save ");
    window.resize(9000, 300);
    EXPECT_EQ(look(), "400x188 6000x2820 9000x4055 save ");
    window.setState(WindowState::Maximized);
    window.resize(300, 405);
    window.paint();
    EXPECT_EQ(look(), "400x188 6000x2820 300x405 save ");
    window.setState(WindowState::Normal);
    EXPECT_EQ(look(), "400x188 6000x2820 4940x4055 save ");
    window.unload();
    outline("SHIP") = Raster(10, 100);  // narrower than the frame
    window.show();
    window.setState(WindowState::Maximized);
    drawOn("Small");
    EXPECT_EQ(look(), "10x188 150x2820 5055x1355 save ");
    window.setState(WindowState::Normal);
    EXPECT_EQ(look(), "10x188 150x2820 5055x4055 save ");
}

TEST_F(Mapper, SaysWhichStepHasFailed) {
    window.show();
    drawOn("Smal");
    EXPECT_EQ(look(), firstLook + "Invalid map file!!!/Error in map file critical; ");
    drawOn("Bare");
    EXPECT_EQ(look(), firstLook + noOutline);
    EXPECT_EQ(window.lastFault(), "the map names no outline");
    const auto kept = std::exchange(pictures.files, {});
    drawOn("Small");
    EXPECT_EQ(look(), firstLook + noOutline);
    EXPECT_EQ(window.lastFault(), folder.path().string() + "/shipimages/SHIP.BMP: cannot be read");
    pictures.files = kept;
    drawOn("Wide");  // 32775 twips
    EXPECT_EQ(look(), "2185x50 32775x750 5055x1335 draw save " + noOutline);
    drawOn("Small");
    EXPECT_EQ(look(), drawnLook);
}

TEST_F(Mapper, ShowsTheOutlineAgainWhenTheDrawingFails) {
    outline("SHIP").pixel(4, 5) = 0x123456;
    parties = "2";
    Connection gone;
    for (const std::uint32_t seen : {0x123456U, 0xFFFFFFU}) {
        window.show();
        EXPECT_EQ(window.lastFault(), "");
        drawOn("Small");
        EXPECT_EQ(look(), "400x100 6000x1500 6305x2735 save "
                          "Could not create the SSD!/SSD Creation Error critical; ");
        EXPECT_EQ(window.lastFault(),
                  "the map has too few points for the ship's damage control parties");
        EXPECT_EQ(window.picSSD.picture().pixel(4, 5), seen);
        window.unload();
        gone = window.RepaintWanted.connect([this] { pictures.files.clear(); });
    }
}

TEST_F(Mapper, SavesUnderANameThatEndsInBmpAndStaysOpenOtherwise) {
    for (const std::string name : {"a.bmp", "b", "é.BMP"}) {
        window.show();
        drawOn("Small");
        for (const std::optional<std::string>& none : {std::optional<std::string>(), {"none/a"}}) {
            desktop.choice = none;
            window.cmdSave.press();
            EXPECT_TRUE(window.isVisible());
            EXPECT_EQ(look(), drawnLook);
        }
        desktop.choice = (folder.path() / name).string();
        window.cmdSave.press();
        EXPECT_EQ(folder.read(name == "a.bmp" ? name : name + ".bmp"), "bmp 400x188");
        EXPECT_FALSE(window.isLoaded());
    }
    EXPECT_EQ(desktop.asked.filterIndex, 2);
    EXPECT_EQ(desktop.asked.initialFolder, folder.path() / "ssds");
    EXPECT_EQ(desktop.asked.extension, ".bmp");
    window.show();  // nothing is drawn yet
    window.cmdSave.press();
    EXPECT_EQ(folder.read("é.BMP.bmp"), "bmp 309x8");
}

}  // namespace
