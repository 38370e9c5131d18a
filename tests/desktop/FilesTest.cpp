// What the program reads and writes: its start, ship files, settings, designs put aside, paper.

#include "DesktopTest.h"

#include <regex>

using namespace fleetwright;

TEST_F(DesktopTest, BrokenCatalogueEndsTheStartWithOneMessageThatNamesFileAndLine) {
    const std::string file = folder.write("weaps.dat", "# One, two\n"
                                                       "Gun,1,1,BEAM,NOWHERE,F,gun.gif\n");
    startProgram();
    waitForKeyboard("FleetWright");
    waitForElement("the message", [&] {
        const auto message = windowOnScreen("FleetWright");
        return !message ? std::nullopt : message->find("label", [&](const Element& label) {
            return label.name().starts_with(file + ":2: ") &&
                   label.name().find("NOWHERE") != std::string::npos;
        });
    });
    press("Return");
    EXPECT_EQ(waitForEnd(), 1);
}

TEST_F(DesktopTest, InstalledProgramTakesNoCodeFromTheUsersFolder) {
    namespace fs = std::filesystem;
    // A package delivers the data, and the application folder is the user's own.
    for (const char* const name : {"ships", "maps", "shipimages", "ssds", "weaps.dat"}) {
        fs::create_directories(path("share"));
        fs::copy(path(name), path("share") / name, fs::copy_options::recursive);
    }
    fs::create_directory_symlink("share", path("delivered"));
    const fs::path users = path("data/FleetWright");
    for (const char* const name : {"images.exe", "w_dll.dll", "sounds.dll"}) {
        folder.write("data/FleetWright/" + std::string(name), "#!/bin/sh\ntouch \"$0.ran\"\n");
        fs::permissions(users / name, fs::perms::owner_all);
    }
    start();
    EXPECT_TRUE(fs::exists(users / "images/ftl.gif"));
    EXPECT_FALSE(fs::exists(users / "images.exe.ran"));
    for (const char* const name : {"w_dll.dll", "sounds.dll"}) {
        waitFor(name, [&] { return loadedFiles().find(path(name)) != std::string::npos; });
    }
    EXPECT_EQ(fs::status(users).permissions(), fs::perms::owner_all);
}

TEST_F(DesktopTest, ShipIsSavedLoadedAndAskedAbout) {
    const std::string name = "ships/Kept Ship.shp", left = "ships/.fleetwright-left.tmp";
    folder.write(left, "by a save that was killed");
    start();
    EXPECT_FALSE(std::filesystem::exists(path(left)));
    setThrust("4");
    press("ctrl+a");
    chooseFile("Save As", path("ships/Kept Ship"));  // the program adds the extension
    waitForFile(name, "Thrust: 4");
    setThrust("5");
    press("ctrl+s");
    waitForFile(name, "Thrust: 5");
    EXPECT_EQ(expectedOf(path(name)), expectedOf(design));
    press("ctrl+n");
    window->waitFor(expectedOf(newDesign()));
    window->load(path(name));

    setThrust("6");
    press("ctrl+n");
    Window(MainWindow::notSaved).click("push button", "Yes");
    window->waitFor(expectedOf(newDesign()));
    window->choose("File", "Kept Ship");
    window->waitFor(expectedOf(path(name)));

    setThrust("4");
    close(MainWindow::title);
    Window(MainWindow::notSaved).get("label", "Ship not saved, continue with exit?");
    Window(MainWindow::notSaved).click("push button", "No");
    close(MainWindow::title);
    Window(MainWindow::notSaved).click("push button", "Yes");
    EXPECT_EQ(waitForEnd(), 0);
}

TEST_F(DesktopTest, StartedWithASheetByItsUrlItShowsTheShipInIt) {
    const std::string ship = path("ships/Provost.shp");
    tool({"unpack"});
    tool({"sheet", ship, "-o", path("A sheet.png")});
    startProgram(("file://" + path("A%20sheet.png").string()).c_str());
    window.emplace();
    window->waitFor(expectedOf(ship));
}

TEST_F(DesktopTest, StartedWithACodeItShowsTheDesignInIt) {
    const std::string ship = path("ships/Provost.shp");
    std::string code = tool({"code", ship});
    code.pop_back();
    startProgram(code.c_str());
    window.emplace();
    window->waitFor(expectedOf(ship));
}

TEST_F(DesktopTest, SettingsWithTheKeyboardAlone) {
    start();
    press("Alt_L");
    window->waitUntil("menu item", "File", ATSPI_STATE_FOCUSED);
    press("Right Right Down Return");
    const Window page("Extras");
    page.waitUntil("text", "Designer", ATSPI_STATE_FOCUSED);
    press("ctrl+a");
    type("A. Smith");
    page.waitForText("text", "Designer", "A. Smith");
    press("Return");
    page.waitUntil("text", "Ship Name", ATSPI_STATE_FOCUSED);
    page.tabTo("check box", "Play Sounds");
    press("space");
    page.tabTo("push button", "Save Settings");
    press("space");
    waitForFile("settings/FleetWright/FleetWright.conf", "Designer=A. Smith\n");
    waitForFile("settings/FleetWright/FleetWright.conf", "Sounds=False\n");
    page.tabTo("push button", "OK");
    press("Return");
    page.waitUntilGone();
    window->waitForText("text", "Designer", "A. Smith");
}

TEST_F(DesktopTest, DesignOutlivesACrash) {
    start();
    window->click("push button", "Mass in steps of 50, up");
    waitToShow("Mass", "52");
    waitFor("the design to be put aside", [&] { return !tool({"recovered"}).empty(); });
    crash();
    waitFor("the window to go", [] { return !windowOnScreen(MainWindow::title); });

    std::string name = tool({"recovered"});
    name.pop_back();
    const Design crashed = design;
    startProgram();
    const Window question("Designs Left by a Crash");
    const Element row = question.get("table cell", "Generic", "Designs put aside");
    waitFor("the keyboard to be in the list", [&] { return row.is(ATSPI_STATE_FOCUSED); });
    question.get("table cell", "52", "Designs put aside");
    press("Return");
    question.waitUntilGone();
    window.emplace();
    window->waitFor(expectedOf(crashed));
    tool({"recovered", name, "back.shp"});
    EXPECT_EQ(expectedOf(path("back.shp")), expectedOf(crashed));

    // It has no file, so Save As gives it one; and it stays where it was, until the user throws it
    // away.
    waitFor("the design to be put aside again", [&] { return tool({"recovered"}) != name + '\n'; });
    press("ctrl+a");
    chooseFile("Save As", path("ships/Crashed"));
    waitForFile("ships/Crashed.shp", "Mass: 52");
    waitFor("its own file to go", [&] { return tool({"recovered"}) == name + '\n'; });
    window->choose("Design", "Designs Put Aside...");
    const Window look("Designs Put Aside");
    look.waitUntil("table cell", "Generic", ATSPI_STATE_FOCUSED);
    press("Delete");
    waitFor("the design to be in the trash", [&] { return tool({"recovered"}).empty(); });
    press("Escape");
    look.waitUntilGone();
    EXPECT_TRUE(std::filesystem::exists(path("data/Trash/files") / (name + ".shp")));
}

TEST_F(DesktopTest, ReportReachesThePaper) {
    const std::string ship = path("ships/Provost.shp"), pdf = path("report.pdf");
    start();
    window->load(ship);
    window->waitUntilActive();
    press("ctrl+p");
    const Window dialog("Print");
    dialog.click("text", "Output file:");
    press("ctrl+a");
    type(pdf);
    dialog.waitForText("text", "Output file:", pdf);
    dialog.click("push button", "Print");
    dialog.waitUntilGone();
    waitForFile("report.pdf", "%%EOF\n");
    const auto oneBlank = [](const std::string& text) {
        return std::regex_replace(text, std::regex("\\s+"), " ");
    };
    EXPECT_EQ(oneBlank(outputOf("pdftotext -layout " + pdf + " -")),
              oneBlank(tool({"report", ship})));
}
