// Sheets, from the list of maps to the file and back onto the screen, and a map of the user's own.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"
#include "runTool.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace fleetwright;

namespace {

/// Draws the ship at hand on a map, saves that as "ssds/sheet.bmp", and holds it against what the
/// command line tool draws of the ship's file.
void drawOn(const std::string& map, const MainWindow& window, const TemporaryFolder& folder,
            const std::string& ship) {
    window.choose("Extras", "Create SSD");
    const Window mapper("Create SSD");
    mapper.tabTo("combo box", "Map");
    press({"ctrl+a"});
    type(map);
    mapper.click("push button", "Draw It!");
    waitFor("the sheet to be drawn",
            [&] { return !mapper.get("push button", "Draw It!").is(ATSPI_STATE_ENABLED); });
    mapper.click("push button", "Save It!");
    chooseFile("Save As", folder.path() / "ssds" / "sheet");
    mapper.waitUntilGone();
    const std::string expected = folder.path() / "expected.bmp";
    const ToolRun run = runTool(
        folder.path(), {"--app", folder.path(), "sheet", ship, "--map", map, "-o", expected});
    ASSERT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(folder.read("ssds/sheet.bmp").substr(0, 2), "BM");
    EXPECT_TRUE(folder.read("ssds/sheet.bmp") == folder.read("expected.bmp"));
}

/// A picture of which every pixel is the mark of a fire control: on the busiest machine its scan
/// lasts until somebody cancels it.
std::string manyMarks() {
    constexpr int width = 900, height = 800;
    std::string picture = "P6\n" + std::to_string(width) + ' ' + std::to_string(height) + "\n255\n";
    for (int i = 0; i < width * height; ++i) {
        picture.append("\xFF\0\0", 3);
    }
    return picture;
}

std::string withoutReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

}  // namespace

TEST(SheetTest, DrawnSavedAndViewed) {
    RunningProgram program;
    const TemporaryFolder& folder = program.folder();
    const std::string ship = folder.path() / "ships" / "Provost.shp";
    program.start();
    const MainWindow window;
    window.load(ship);

    const std::string maps = runTool(folder.path(), {"--app", folder.path(), "maps", ship}).output;
    const std::string map = maps.substr(0, maps.find('\n'));
    ASSERT_FALSE(map.empty());
    drawOn(map, window, folder, ship);

    window.choose("Extras", "View SSD");
    const Window viewer("View SSD");
    const int emptyWidth = viewer.get("frame", "Sheet").place().width;
    viewer.click("push button", "Select File");
    chooseFile("Open", folder.path() / "ssds" / "sheet.bmp");
    waitFor("the sheet to be shown", [&] {
        const Rectangle place = viewer.get("frame", "Sheet").place();
        return place.width > emptyWidth;
    });
}

TEST(SheetTest, NewMapIsDrawnOnWithoutANewStart) {
    RunningProgram program;
    const TemporaryFolder& folder = program.folder();
    const std::string many = folder.write("shipimages/many.ppm", manyMarks());
    const std::string outline = folder.path() / "shipimages" / "Capital Carrier - Aerie.gif";
    const std::string ship = folder.path() / "ships" / "Provost.shp";
    program.start();
    const MainWindow window;
    window.load(ship);
    window.choose("Extras", "Create SSD Map");
    const Window creator("SSD Map Creator");
    const auto select = [&](const std::string& file) {
        creator.click("push button", "Select File");
        chooseFile("Open", file);
    };
    const auto isReady = [&] {
        return creator.get("push button", "Select File").is(ATSPI_STATE_ENABLED);
    };
    const auto waitForMap = [&](const std::string& text) {
        waitFor("the map", [&] { return isReady() && creator.get("text", "Map").text() == text; });
    };

    select(many);
    creator.click("push button", "Do It");
    waitFor("the scan to be under way", [&] { return !isReady(); });
    creator.click("check box", "Cancel");
    waitForMap("Operation Cancelled");

    select(outline);
    creator.click("push button", "Do It");
    const ToolRun scanned = runTool(folder.path(), {"scan", outline});
    ASSERT_EQ(scanned.status, 0) << scanned.errors;
    waitForMap(withoutReturns(scanned.output));
    creator.click("push button", "Save It");
    chooseFile("Save As", folder.path() / "maps" / "0 New");
    waitFor("the map to be saved", [&] { return !folder.read("maps/0 New.map").empty(); });

    clickToClose("SSD Map Creator");
    creator.waitUntilGone();
    drawOn("0 New", window, folder, ship);
}
