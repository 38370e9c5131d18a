// A fleet, from the ship at hand to the tool.

#include "DesktopTest.h"

using namespace fleetwright;

TEST_F(DesktopTest, FleetIsPutTogetherExportedAndSaved) {
    const std::string ship = path("ships/Provost.shp");
    start();
    window->load(ship);
    window->choose("Design", "Fleet...");
    waitForKeyboard("New Fleet - Fleet");
    press("ctrl+d");
    waitForKeyboard("*New Fleet - Fleet");
    type("Home");
    const Window fleet("*Home - Fleet");
    press("ctrl+e");  // while the name is being typed
    chooseFile("Save As", path("ssds/home"));
    waitForFile("ssds/home.pdf", "%%EOF");
    EXPECT_EQ(tool({"report", path("ssds/home.pdf")}), tool({"report", ship}));
    fleet.waitUntilActive();
    press("ctrl+s");
    chooseFile("Save As", path("ships/home"));
    fleet.waitUntilGone();  // saved, it has no * in front of its name
    tool({"fleet", path("ships/home.fleet"), "--sheets", path("expected.pdf")});
    EXPECT_EQ(tool({"report", path("expected.pdf")}), tool({"report", ship}));
}
