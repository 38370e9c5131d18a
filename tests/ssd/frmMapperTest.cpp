#include "frmMapper.h"

#include "Error.h"
#include "fakeServices.h"
#include "formText.h"
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
        folder.write("Small", "SIZE: 10\nIMAGE: SHIP.BMP\nWEAP: (1,2,F)\nDCP: (3,4)\n"
                              "FIRECON: (5,6)\n");
        folder.write("Wide", "SIZE: 100\nIMAGE: WIDE.BMP\nWEAP: (1,2,F)\nWEAP: (9,2,P)\n");
        folder.write("Light", "SIZE: 4\nIMAGE: ship.bmp\nWEAP: (1,2,F)\n");
        folder.write("Bare", "SIZE: 10\nWEAP: (1,2,F)\n");
        outline("SHIP") = Raster(400, 100);
        outline("WIDE") = Raster(2185, 50);
        maps = loadMaps(folder.path());
    }

    void carry(std::initializer_list<std::pair<const char*, const char*>> aboard) {
        systems.clear();
        for (const ListView::Row& row : rows(aboard)) {
            systems.add(row.key, row.text, row.subItem);
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

    MapFolder folder;
    ShipYard yard{arcCatalogue};
    std::unique_ptr<ShipClass> ship = yard.loaded("Mass: 10\n");
    Form main{{.name = "main"}};
    ListView systems{main, {.name = "systems"}};
    std::string parties = "1";
    SSDMaps maps;
    ChoosingDesktop desktop;
    PicturesByName pictures;
    std::string_view lacking;
    const Raster small{8, 8};
    const SheetImages images{[this](std::string_view name) {
                                 return name == lacking ? throw FileError(name, "is missing")
                                                        : small;
                             },
                             [this](std::string_view) -> const Raster& { return small; }};
    frmMapper window{{.appFolder = folder.path(),
                      .desktop = desktop,
                      .pictures = pictures,
                      .encoder = *this,
                      .images = images,
                      .g_colSSDMaps = maps,
                      .lvCurrentWeapons = systems,
                      .ship = [this]() -> SheetShip {
                          return {"5", parties, "1", "Magpie", "Åsa", "99", *ship};
                      }}};
};

const std::string firstLook = "0x0 4635x120 5055x1335 draw save ";
const std::string emptyLook = "0x0 4635x120 5055x1355 draw save ";
const std::string drawnLook = "400x171 6000x2565 6305x3800 save ";

TEST_F(Mapper, HasItsControlsInTheirPlaces) {
    EXPECT_EQ(formText(window), "frmMapper 0,0 4935x930 \"Create SSD\" hidden, border sizable\n"
                                "  fraControls 105,0 4635x645\n"
                                "    cboMapSelection 105,210 2115x315 \"Selection\" \"Map\"\n"
                                "    cmdDrawIt 2310,210 1065x330 \"Draw It!\"\n"
                                "    cmdSave 3465,210 1065x330 \"Save It!\"\n"
                                "  picSSD 105,735 4635x120 \"Sheet\"\n");
}

TEST_F(Mapper, OffersTheMapsThatFitAndBeginsAnewEachTime) {
    window.show();
    EXPECT_EQ(window.cboMapSelection.items(), (std::vector<std::string>{"Bare", "Small", "Wide"}));
    EXPECT_EQ(window.cboMapSelection.text(), "");
    window.cmdDrawIt.press();
    EXPECT_EQ(look(), firstLook);
    window.paint();  // the strip and its margin are higher than the window was drawn
    EXPECT_EQ(look(), emptyLook);
    drawOn("small");
    window.setState(WindowState::Maximized);
    window.unload();
    carry({{"Damage Control Party", "9"}});
    window.show();
    EXPECT_EQ(look(), emptyLook);
    EXPECT_EQ(window.state(), WindowState::Normal);
    EXPECT_EQ(window.cboMapSelection.text(), "");
    carry({{"F", "9"}});
    window.show();  // open already: it only comes to the front
    EXPECT_EQ(window.cboMapSelection.items().size(), 3U);
    window.unload();
    carry({{"F", "32768"}});
    window.show();
    EXPECT_EQ(look(), emptyLook + "The ship has too many systems for a sheet!!!/SSD Creation Error "
                                  "critical; ");
    EXPECT_TRUE(window.cboMapSelection.items().empty());
}

TEST_F(Mapper, DrawsAndShowsEachSystemAsItComes) {
    carry({{"F", "1"}, {"Listed", "2"}});
    window.show();
    std::string seen;
    const Connection repainted = window.RepaintWanted.connect(
        [&] { seen += std::to_string(window.picSSD.picture().height()) + ' '; });
    const Connection painted = window.picSSD.Painted.connect(
        [&](int first, int end) { seen += std::to_string(end - first) + ' '; });
    drawOn("small");
    EXPECT_EQ(seen, "100 100 100 100 100 100 240 ") << "the two that are listed have their lines";
    EXPECT_EQ(look(), "400x240 6000x3600 6305x4835 save ");
}

TEST_F(Mapper, TakesItsSizeFromTheSheetAndKeepsIt) {
    window.show();
    drawOn("Small");
    EXPECT_EQ(look(), drawnLook);
    window.resize(300, 5000);
    EXPECT_EQ(look(), "400x171 6000x2565 4940x5000 save ");
    window.resize(9000, 300);
    EXPECT_EQ(look(), "400x171 6000x2565 9000x3800 save ");
    window.setState(WindowState::Maximized);
    window.resize(300, 405);
    window.paint();
    EXPECT_EQ(look(), "400x171 6000x2565 300x405 save ");
    window.setState(WindowState::Normal);
    EXPECT_EQ(look(), "400x171 6000x2565 4940x3800 save ");
    window.unload();
    outline("SHIP") = Raster(10, 100);  // narrower than the frame
    window.show();
    window.setState(WindowState::Maximized);
    drawOn("Small");
    EXPECT_EQ(look(), "10x171 150x2565 5055x1355 save ");
    window.setState(WindowState::Normal);
    EXPECT_EQ(look(), "10x171 150x2565 5055x3800 save ");
}

TEST_F(Mapper, SaysWhichStepHasFailed) {
    const std::string noOutline = "Couldn't load image file!!!/Error loading image file critical; ";
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
    const auto expectFailure = [&](const std::string& cause) {
        window.show();
        drawOn("Small");
        EXPECT_EQ(look(), "400x100 6000x1500 6305x2735 save "
                          "Could not create the SSD!/SSD Creation Error critical; ");
        EXPECT_EQ(window.lastFault(), cause);
        const Raster& sheet = window.picSSD.picture();
        EXPECT_EQ(sheet.pixel(4, 5), pictures.files.empty() ? 0xFFFFFFU : 0x123456U);
        window.unload();
    };
    lacking = "escort5.gif";
    expectFailure("escort5.gif: is missing");
    lacking = "";
    parties = "many";
    expectFailure("\"many\" is no number");
    parties = "2";
    const Connection gone = window.RepaintWanted.connect([this] { pictures.files.clear(); });
    expectFailure("the map has too few points for the ship's damage control parties");
}

TEST_F(Mapper, SavesUnderANameThatEndsInBmpAndStaysOpenOtherwise) {
    for (const auto& [typed, written] : {std::pair("a.bmp", "a.bmp"),
                                         {"b", "b.bmp"},
                                         {"c.BMP", "c.BMP.bmp"},
                                         {"é.png", "é.png.bmp"}}) {
        window.show();
        drawOn("Small");
        desktop.choice.reset();
        window.cmdSave.press();
        desktop.choice = (folder.path() / "none" / "a").string();
        window.cmdSave.press();
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(look(), drawnLook);
        desktop.choice = (folder.path() / typed).string();
        window.cmdSave.press();
        EXPECT_EQ(folder.read(written), "bmp 400x171") << typed;
        EXPECT_FALSE(window.isLoaded());
    }
    EXPECT_EQ(desktop.asked.filter, "All Files (*.*)|*.*|BitMap Files");
    EXPECT_EQ(desktop.asked.filterIndex, 2);
    EXPECT_EQ(desktop.asked.initialFolder, folder.path() / "ssds");
    EXPECT_EQ(desktop.asked.extension, ".bmp");
    window.show();  // nothing is drawn yet
    window.cmdSave.press();
    EXPECT_EQ(folder.read("é.png.bmp"), "bmp 309x8");
}

}  // namespace
