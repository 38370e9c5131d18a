// The page of the settings and the ship's names, with the keyboard alone.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// Opens the page through the menus.
Window openPage(const MainWindow& window) {
    window.waitUntilActive();
    press({"Alt_L"});
    waitFor("the keyboard to come to the menus",
            [&] { return window.get("menu item", "File").is(ATSPI_STATE_FOCUSED); });
    press({"Right", "Right", "Down", "Return"});
    Window page("Extras");
    waitFor("the keyboard to be the designer's",
            [&] { return page.get("text", "Designer").is(ATSPI_STATE_FOCUSED); });
    return page;
}

void waitForText(const Window& window, const std::string& box, const std::string& text) {
    waitFor(box + " to be " + text, [&] { return window.get("text", box).text() == text; });
}

/// Writes into the box that has the keyboard.
void write(const Window& page, const std::string& box, const std::string& text) {
    press({"ctrl+a"});
    type(text);
    waitForText(page, box, text);
}

}  // namespace

TEST(ExtrasTest, KeyboardAlone) {
    RunningProgram program;
    program.start();
    const MainWindow window;
    Window page = openPage(window);
    write(page, "Designer", "A. Smith");
    press({"Return"});
    waitFor("the keyboard to be the name's",
            [&] { return page.get("text", "Ship Name").is(ATSPI_STATE_FOCUSED); });
    write(page, "Ship Name", "Rook II");
    for (const char* const box : {"Play Sounds", "Hide when Minimized"}) {
        page.tabTo("check box", box);
        const bool wasTicked = page.get("check box", box).is(ATSPI_STATE_CHECKED);
        press({"space"});
        waitFor(std::string(box) + " to change",
                [&] { return page.get("check box", box).is(ATSPI_STATE_CHECKED) != wasTicked; });
    }
    page.tabTo("push button", "Save Settings");
    press({"space"});
    const std::string settings = "settings/FleetWright/FleetWright.conf";
    waitFor("the settings to be written", [&] {
        return program.folder().read(settings).find("Designer=A. Smith\n") != std::string::npos;
    });
    const std::string written = program.folder().read(settings);
    EXPECT_NE(written.find("Sounds=False\n"), std::string::npos) << written;
    EXPECT_NE(written.find("Hide=False\n"), std::string::npos) << written;
    EXPECT_NE(written.find("ConfirmExit=True\n"), std::string::npos) << written;
    page.tabTo("push button", "OK");
    press({"Return"});
    page.waitUntilGone();
    waitForText(window, "Ship name", "Rook II");
    waitForText(window, "Designer", "A. Smith");

    page = openPage(window);
    waitForText(page, "Ship Name", "Rook II");
    write(page, "Designer", "Nobody");
    press({"Escape"});
    page.waitUntilGone();
    page = openPage(window);
    waitForText(page, "Designer", "A. Smith");
    waitForText(window, "Designer", "A. Smith");
}
