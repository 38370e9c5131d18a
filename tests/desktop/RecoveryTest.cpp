// What a crash costs.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"
#include "runTool.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

const std::string recoveredDesign = "Recovered design: ";

/// The text of the only design in a folder; empty as long as there is none.
std::string onlyDesignIn(const fs::path& folder) {
    std::error_code error;
    const fs::directory_iterator entries(folder, error);
    for (const fs::directory_entry& entry : entries) {
        if (entry.path().extension().string().starts_with(".shp")) {
            std::ifstream file(entry.path());
            return {std::istreambuf_iterator<char>(file), {}};
        }
    }
    return {};
}

}  // namespace

TEST(RecoveryTest, DesignOutlivesTheProgram) {
    RunningProgram program;
    const auto recovered = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "recovered");
        const ToolRun run = runTool(program.folder().path(), std::move(arguments),
                                    "XDG_DATA_HOME=" + program.dataHome().string());
        EXPECT_EQ(run.status, 0) << run.errors;
        return run.output;
    };
    program.start();
    {
        const MainWindow window;
        window.click("push button", "Mass in steps of 50, up");
        window.click("check box", "Thrust 4");
        window.waitFor({.mass = 52, .thrust = 4});
    }
    const fs::path folder = program.dataHome() / "FleetWright" / "recovered";
    waitFor("the design to be put aside", [&] {
        const std::string text = onlyDesignIn(folder);
        return text.find("Mass: 52") != std::string::npos &&
               text.find("Thrust: 4") != std::string::npos;
    });
    program.crash();
    waitFor("the window to go", [] { return !windowOnScreen(MainWindow::title); });

    program.start();
    const MainWindow window;
    const fs::path file = window.waitForStatus(recoveredDesign).substr(recoveredDesign.size());
    window.waitFor(Design());
    EXPECT_EQ(recovered({}), file.stem().string() + '\n');
    recovered({file.stem(), "back.shp"});
    EXPECT_EQ(expectedOf(program.folder().path() / "back.shp"),
              expectedOf(Design{.mass = 52, .thrust = 4}));
}
