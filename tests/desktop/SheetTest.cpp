// A sheet, from the list of maps to the file and back onto the screen.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"
#include "runTool.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(SheetTest, DrawnSavedAndViewed) {
    RunningProgram program;
    const TemporaryFolder& folder = program.folder();
    const std::string ship = folder.path() / "ships" / "Provost.shp";
    program.start();
    const MainWindow window;
    press({"ctrl+l"});
    chooseFile("Open", ship);
    window.waitForShip(ship);
    window.waitUntilActive();

    window.choose("Extras", "Create SSD");
    const Window mapper("Create SSD");
    mapper.tabTo("combo box", "Map");
    const std::string maps = runTool(folder.path(), {"--app", folder.path(), "maps", ship}).output;
    const std::string map = maps.substr(0, maps.find('\n'));
    ASSERT_FALSE(map.empty());
    press({"ctrl+a"});
    type(map);
    click(mapper.get("push button", "Draw It!"));
    waitFor("the sheet to be drawn",
            [&] { return !mapper.get("push button", "Draw It!").is(ATSPI_STATE_ENABLED); });
    click(mapper.get("push button", "Save It!"));
    chooseFile("Save As", folder.path() / "ssds" / "sheet");
    mapper.waitUntilGone();
    const std::string expected = folder.path() / "expected.bmp";
    const ToolRun run = runTool(
        folder.path(), {"--app", folder.path(), "sheet", ship, "--map", map, "-o", expected});
    ASSERT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(folder.read("ssds/sheet.bmp").substr(0, 2), "BM");
    EXPECT_TRUE(folder.read("ssds/sheet.bmp") == folder.read("expected.bmp"));

    window.waitUntilActive();
    window.choose("Extras", "View SSD");
    const Window viewer("View SSD");
    const int emptyWidth = viewer.get("frame", "Sheet").place().width;
    click(viewer.get("push button", "Select File"));
    chooseFile("Open", folder.path() / "ssds" / "sheet.bmp");
    viewer.waitUntilActive();
    waitFor("the sheet to be shown", [&] {
        const Rectangle place = viewer.get("frame", "Sheet").place();
        return place.width > emptyWidth;
    });
}
