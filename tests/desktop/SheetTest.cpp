// Sheets, from the list of maps to the file and back onto the screen, and a map of the user's own.

#include "DesktopTest.h"

#include <algorithm>

using namespace fleetwright;

namespace {

class SheetTest : public DesktopTest {
protected:
    void load() {
        start();
        window->load(ship);
    }

    /// Draws the ship on a map and saves that as "ssds/sheet.bmp"; the tool has to draw the same.
    void drawOn(const std::string& map) {
        window->choose("Extras", "Create SSD");
        const Window mapper("Create SSD");
        mapper.tabTo("combo box", "Map");
        press("ctrl+a");
        type(map);
        mapper.click("push button", "Draw It!");
        mapper.waitUntil("push button", "Draw It!", ATSPI_STATE_ENABLED, false);
        mapper.click("push button", "Save It!");
        chooseFile("Save As", path("ssds/sheet"));
        mapper.waitUntilGone();
        tool({"sheet", ship, "--map", map, "-o", path("expected.bmp")});
        EXPECT_TRUE(program.folder().read("ssds/sheet.bmp").starts_with("BM"));
        EXPECT_TRUE(program.folder().read("ssds/sheet.bmp") ==
                    program.folder().read("expected.bmp"));
    }

    const std::string ship = path("ships/Provost.shp");
};

}  // namespace

TEST_F(SheetTest, DrawnSavedAndViewed) {
    load();
    const std::string maps = tool({"maps", ship});
    drawOn(maps.substr(0, maps.find('\n')));

    window->choose("Extras", "View SSD");
    const Window viewer("View SSD");
    const int emptyWidth = viewer.get("frame", "Sheet").place().width;
    viewer.click("push button", "Select File");
    chooseFile("Open", path("ssds/sheet.bmp"));
    waitFor("the sheet to be shown",
            [&] { return viewer.get("frame", "Sheet").place().width > emptyWidth; });
}

TEST_F(SheetTest, NewMapIsDrawnOnWithoutANewStart) {
    // Every pixel is the mark of a fire control: on the busiest machine its scan lasts until
    // somebody cancels it.
    std::string picture = "P6\n900 800\n255\n";
    for (int i = 0; i < 900 * 800; ++i) {
        picture.append("\xFF\0\0", 3);
    }
    program.folder().write("shipimages/many.ppm", picture);
    const std::string outline = path("shipimages/Capital Carrier - Aerie.gif");
    load();
    window->choose("Extras", "Create SSD Map");
    const Window creator("SSD Map Creator");
    const auto scan = [&](const std::string& file) {
        creator.click("push button", "Select File");
        chooseFile("Open", file);
        creator.click("push button", "Do It");
    };
    scan(path("shipimages/many.ppm"));
    creator.waitUntil("push button", "Select File", ATSPI_STATE_ENABLED, false);
    creator.click("check box", "Cancel");
    creator.waitForText("text", "Map", "Operation Cancelled");
    creator.waitUntil("push button", "Select File", ATSPI_STATE_ENABLED);

    scan(outline);
    std::string map = tool({"scan", outline});
    std::erase(map, '\r');
    creator.waitForText("text", "Map", map);
    creator.waitUntil("push button", "Select File", ATSPI_STATE_ENABLED);
    creator.click("push button", "Save It");
    chooseFile("Save As", path("maps/0 New"));
    waitForFile("maps/0 New.map", "IMAGE");

    close("SSD Map Creator");
    creator.waitUntilGone();
    drawOn("0 New");
}
