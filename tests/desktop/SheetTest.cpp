// From an outline to a map of the user's own, to a sheet drawn on it, and back onto the screen.

#include "DesktopTest.h"

#include <algorithm>

using namespace fleetwright;

TEST_F(DesktopTest, SheetIsDrawnOnANewMapSavedAndViewed) {
    // Every pixel is the mark of a fire control: its scan lasts until somebody cancels it.
    std::string picture = "P6\n900 800\n255\n";
    for (int i = 0; i < 900 * 800; ++i) {
        picture.append("\xFF\0\0", 3);
    }
    folder.write("shipimages/many.ppm", picture);
    const std::string outline = path("shipimages/Capital Carrier - Aerie.gif");
    const std::string ship = path("ships/Provost.shp");
    start();
    window->load(ship);
    window->choose("Extras", "Create SSD Map");
    const Window creator("SSD Map Creator");
    const auto scan = [&](const std::string& file, const std::string& map) {
        const Element select = creator.get("push button", "Select File");
        const Element cancel = creator.get("check box", "Cancel");
        creator.click("push button", "Select File");
        chooseFile("Open", file);
        creator.click("push button", "Do It");
        if (map == "Operation Cancelled") {
            // While it scans, the program answers each question late, and a search asks many.
            waitFor("the scan to begin", [&] { return !select.is(ATSPI_STATE_ENABLED); });
            click(cancel);
        }
        creator.waitForText("text", "Map", map);
        creator.waitUntil("push button", "Select File", ATSPI_STATE_ENABLED);
    };
    scan(path("shipimages/many.ppm"), "Operation Cancelled");
    std::string map = tool({"scan", outline});
    std::erase(map, '\r');
    scan(outline, map);
    creator.click("push button", "Save It");
    chooseFile("Save As", path("maps/0 New"));
    waitForFile("maps/0 New.map", "IMAGE");
    close("SSD Map Creator");
    creator.waitUntilGone();

    window->choose("Extras", "Create SSD");
    const Window mapper("Create SSD");
    mapper.tabTo("combo box", "Map");
    press("ctrl+a");
    type("0 New");
    mapper.click("push button", "Draw It!");
    mapper.waitUntil("push button", "Draw It!", ATSPI_STATE_ENABLED, false);
    mapper.click("combo box", "0 New");  // where this key would go to the end of the text
    press("ctrl+e");
    chooseFile("Save As", path("ssds/carrier.png"));
    waitForFile("ssds/carrier.png", "IEND");
    mapper.get("status bar", "Saved " + path("ssds/carrier.png").string());
    mapper.click("push button", "Save It!");
    chooseFile("Save As", path("ssds/sheet"));
    mapper.waitUntilGone();
    tool({"sheet", ship, "--map", "0 New", "-o", path("expected.bmp")});
    EXPECT_TRUE(folder.read("ssds/sheet.bmp") == folder.read("expected.bmp"));

    window->choose("Extras", "View SSD");
    const Window viewer("View SSD");
    const auto sheetWidth = [] {
        // Called a frame by older Qt. A program that is busy says of nothing where it is.
        int width = 0;
        waitFor("the sheet to have its place", [&] {
            const auto all = windowOnScreen("View SSD");
            const auto panel = all ? all->find("panel", "Sheet") : std::nullopt;
            const auto sheet = all && !panel ? all->find("frame", "Sheet") : panel;
            width = sheet ? sheet->place().width : 0;
            return width > 0;
        });
        return width;
    };
    const int emptyWidth = sheetWidth();
    viewer.click("push button", "Select File");
    chooseFile("Open", path("ssds/sheet.bmp"));
    waitFor("the sheet to be shown", [&] { return sheetWidth() > emptyWidth; });
    const auto exportViewed = [&](const std::string& to) {
        waitForKeyboard("View SSD");
        press("ctrl+e");
        chooseFile("Save As", path(to));
        waitForFile(to, "</svg>");
        return folder.read(to);
    };
    EXPECT_NE(exportViewed("ssds/picture.svg").find("image/png"), std::string::npos);
    viewer.click("push button", "Select File");
    chooseFile("Open", path("ssds/carrier.png"));
    // The ship has come along, and goes on from here.
    EXPECT_EQ(exportViewed("ssds/again.svg").find("image/png"), std::string::npos);
    press("ctrl+p");
    waitForKeyboard("Print");
    press("Escape");
    waitForKeyboard("View SSD");
    press("Escape");
    viewer.waitUntilGone();
    const auto exported = [&](const char* from, const char* to) {
        window->load(path("ships/Wren.shp"));
        window->load(path(from));
        press("ctrl+e");
        chooseFile("Save As", path(to));
        waitForFile(to, "%%EOF");
        return folder.read(to);
    };
    exported("ssds/again.svg", "ssds/again.pdf");
    EXPECT_EQ(tool({"report", path("ssds/again.pdf")}), tool({"report", ship}));
    tool({"sheet", ship, "-o", path("expected.pdf")});
    EXPECT_TRUE(exported("ships/Provost.shp", "ssds/own.pdf") == folder.read("expected.pdf"));
}
