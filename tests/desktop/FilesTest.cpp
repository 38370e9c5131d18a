// Ships in files: what is saved is what is loaded, and what the command line tool finds there.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

class FilesTest : public testing::Test {
protected:
    void SetUp() override {
        program.start();
        window.emplace();
    }

    void setThrust(int thrust) {
        window->click("check box", "Thrust " + std::to_string(thrust));
        design.thrust = thrust;
        window->waitFor(design);
    }
    /// Waits for a ship file to hold the design.
    void waitForSaved(const std::string& name) {
        const std::string line = "Thrust: " + std::to_string(design.thrust);
        waitFor(name + " to be saved",
                [&] { return program.folder().read(name).find(line) != std::string::npos; });
        EXPECT_EQ(expectedOf(program.folder().path() / name), expectedOf(design));
    }

    RunningProgram program;
    std::optional<MainWindow> window;
    Design design;
};

}  // namespace

TEST_F(FilesTest, SavedAndLoadedAgain) {
    const std::string name = "ships/Kept Ship.shp";
    const std::filesystem::path file = program.folder().path() / name;
    window->click("push button", "Mass in steps of 50, up");
    design.mass = 52;
    setThrust(4);
    press({"ctrl+a"});
    chooseFile("Save As", file.parent_path() / file.stem());  // the program adds the extension
    waitForSaved(name);
    setThrust(5);
    press({"ctrl+s"});
    waitForSaved(name);

    press({"ctrl+n"});
    window->waitFor(Design());
    window->load(file);

    setThrust(6);
    press({"ctrl+n"});
    Window(MainWindow::notSaved).click("push button", "Yes");
    window->waitFor(Design());
    window->choose("File", file.stem());
    window->waitForShip(file);
    EXPECT_EQ(expectedOf(file).at("Mass"), "52");
}
