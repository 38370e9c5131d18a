#include "frmMapper.h"

#include "Error.h"
#include "SheetImages.h"
#include "fakeServices.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <map>

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
        outline("SHIP") = Raster(400, 100);
        outline("WIDE") = Raster(2185, 50);
        maps = loadMaps(folder.path());
        window = std::make_unique<frmMapper>(frmMapper::Services{
            folder.path(), desktop, pictures, *this, images, maps, systems,
            [this]() -> SheetShip { return {"5", parties, "1", "Magpie", "Åsa", "99", *ship}; }});
    }

    void carry(std::initializer_list<std::pair<const char*, const char*>> aboard) {
        systems.clear();
        for (const ListView::Row& row : rows(aboard)) {
            systems.add(row.key, row.text, row.subItem);
        }
    }
    void drawOn(const std::string& map) {
        window->cboMapSelection.type(map);
        window->cmdDrawIt.press();
    }
    /// Which buttons can be pressed: "draw save".
    std::string buttons() const {
        return std::string(window->cmdDrawIt.isEnabled() ? "draw " : "") +
               (window->cmdSave.isEnabled() ? "save" : "");
    }
    /// Size of the sheet, of its box and of the window.
    std::string sizes() const {
        const Raster& picture = window->picSSD.picture();
        const Place& box = window->picSSD.place();
        return std::to_string(picture.width()) + 'x' + std::to_string(picture.height()) + ' ' +
               std::to_string(box.width) + 'x' + std::to_string(box.height) + ' ' +
               std::to_string(window->width()) + 'x' + std::to_string(window->height());
    }
    Raster& outline(const std::string& name) {
        return pictures.files[(folder.path() / "shipimages" / (name + ".BMP")).string()];
    }
    std::string takeLog() { return std::exchange(desktop.log, {}); }

    // PictureEncoder
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
    std::unique_ptr<frmMapper> window;
};

constexpr const char* drawnSizes = "400x171 6000x2565 6305x3800";

}  // namespace

TEST_F(Mapper, OffersTheMapsThatFitAndBeginsEmpty) {
    window->show();
    EXPECT_EQ(window->cboMapSelection.items(), (std::vector<std::string>{"Small", "Wide"}));
    EXPECT_EQ(window->cboMapSelection.text(), "");
    EXPECT_EQ(buttons(), "draw save");
    window->cmdDrawIt.press();
    EXPECT_EQ(sizes(), "0x0 4635x120 5055x1335");
    EXPECT_EQ(takeLog(), "");
    window->paint();  // the strip and its margin are higher than the window was drawn
    EXPECT_EQ(sizes(), "0x0 4635x120 5055x1355");
}

TEST_F(Mapper, DrawsAndShowsEachSystemAsItComes) {
    carry({{"F", "1"}, {"Listed", "2"}});
    window->show();
    std::vector<int> seen;
    const Connection connection =
        window->RepaintWanted.connect([&] { seen.push_back(window->picSSD.picture().height()); });
    drawOn("small");
    EXPECT_EQ(takeLog(), "");
    EXPECT_EQ(seen, (std::vector<int>{100, 100, 100}));
    EXPECT_EQ(buttons(), "save");
    EXPECT_GT(window->picSSD.picture().height(), 171);  // the two that are listed
    EXPECT_EQ(window->picSSD.place().height, window->picSSD.picture().height() * 15);
}

TEST_F(Mapper, TakesItsSizeFromTheSheetAndKeepsIt) {
    window->show();
    drawOn("Small");
    EXPECT_EQ(sizes(), drawnSizes);
    window->resize(300, 5000);
    EXPECT_EQ(sizes(), "400x171 6000x2565 4940x5000");
    window->resize(9000, 300);
    EXPECT_EQ(sizes(), "400x171 6000x2565 9000x3800");
    window->setState(WindowState::Maximized);
    window->resize(300, 405);
    EXPECT_EQ(sizes(), "400x171 6000x2565 300x405");
    window->setState(WindowState::Normal);
    EXPECT_EQ(sizes(), "400x171 6000x2565 4940x3800");

    outline("SHIP") = Raster(10, 100);  // narrower than the frame
    window->unload();
    window->show();
    EXPECT_EQ(sizes(), "0x0 4635x120 5055x1355");
    drawOn("Small");
    EXPECT_EQ(sizes(), "10x171 150x2565 4940x3800");
}

TEST_F(Mapper, SaysWhichStepHasFailed) {
    window->show();
    drawOn("Smal");
    EXPECT_EQ(takeLog(), "Invalid map file!!!/Error in map file critical; ");
    pictures.files.erase((folder.path() / "shipimages/SHIP.BMP").string());
    drawOn("Small");
    EXPECT_EQ(takeLog(), "Couldn't load image file!!!/Error loading image file critical; ");
    EXPECT_NE(window->lastFault().find("SHIP.BMP: cannot be read"), std::string::npos);
    drawOn("Wide");  // 32775 twips
    EXPECT_EQ(takeLog(), "Couldn't load image file!!!/Error loading image file critical; ");
    EXPECT_EQ(buttons(), "draw save");

    // A second click does not meet what the first one has left in the lists.
    outline("SHIP") = Raster(400, 100);
    outline("WIDE") = Raster(400, 100);
    drawOn("Small");
    EXPECT_EQ(takeLog(), "");
    EXPECT_EQ(sizes(), drawnSizes);
}

TEST_F(Mapper, ShowsTheOutlineAgainWhenTheDrawingFails) {
    outline("SHIP").pixel(4, 5) = 0x123456;
    const auto expectFailure = [&](const char* cause) {
        window->show();
        drawOn("Small");
        EXPECT_EQ(takeLog(), "Could not create the SSD!/SSD Creation Error critical; ");
        EXPECT_NE(window->lastFault().find(cause), std::string::npos) << window->lastFault();
        EXPECT_EQ(buttons(), "save");
        EXPECT_EQ(sizes(), "400x100 6000x1500 6305x2735");
        EXPECT_EQ(window->picSSD.picture().pixel(4, 5), 0x123456U);
        window->unload();
    };
    lacking = "escort5.gif";
    expectFailure("escort5.gif");
    lacking = "";
    parties = "2";
    expectFailure("damage control parties");
    parties = "many";
    expectFailure("many");
}

TEST_F(Mapper, RefusesCountsThatNoSheetHolds) {
    carry({{"F", "32768"}});
    window->show();
    EXPECT_EQ(takeLog(),
              "The ship has too many systems for a sheet!!!/SSD Creation Error critical; ");
    EXPECT_TRUE(window->cboMapSelection.items().empty());
}

TEST_F(Mapper, SavesUnderANameThatEndsInBmp) {
    const std::map<std::string, std::string> names = {
        {"a.bmp", "a.bmp"}, {"b", "b.bmp"}, {"c.BMP", "c.BMP.bmp"}, {"é.png", "é.png.bmp"}};
    for (const auto& [typed, written] : names) {
        window->show();
        drawOn("Small");
        desktop.choice = (folder.path() / typed).string();
        window->cmdSave.press();
        EXPECT_EQ(folder.read(written), "bmp 400x171") << typed;
        EXPECT_FALSE(window->isLoaded());
    }
}

TEST_F(Mapper, StaysOpenWhenNothingIsSaved) {
    window->show();
    drawOn("Small");
    window->cmdSave.press();
    EXPECT_EQ(desktop.asked.filter, "All Files (*.*)|*.*|BitMap Files");
    EXPECT_EQ(desktop.asked.filterIndex, 2);
    EXPECT_EQ(desktop.asked.initialFolder, folder.path() / "ssds");
    desktop.choice = (folder.path() / "none" / "a").string();
    window->cmdSave.press();
    EXPECT_EQ(takeLog(), "");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(sizes(), drawnSizes);
}

TEST_F(Mapper, BeginsAnewEachTimeAndSavesTheEmptyStrip) {
    window->show();
    drawOn("Small");
    window->setState(WindowState::Maximized);
    window->unload();
    carry({});
    window->show();
    EXPECT_EQ(buttons(), "draw save");
    EXPECT_EQ(window->cboMapSelection.text(), "");
    EXPECT_EQ(sizes(), "0x0 4635x120 5055x1355");
    EXPECT_EQ(window->state(), WindowState::Normal);
    carry({{"F", "9"}});
    window->show();  // open already: it only comes to the front
    EXPECT_EQ(window->cboMapSelection.items().size(), 2U);
    desktop.choice = (folder.path() / "strip").string();
    window->cmdSave.press();
    EXPECT_EQ(folder.read("strip.bmp"), "bmp 309x8");
}
