#pragma once

#include "Hands.h"
#include "RunningProgram.h"
#include "Window.h"
#include "runTool.h"

#include <gtest/gtest.h>

#include <optional>

namespace fleetwright {

/// A journey through the program, which is held against the command line tool at every step.
class DesktopTest : public testing::Test {
protected:
    void start() {
        program.start();
        window.emplace();
        window->waitFor(expectedOf(newDesign()));
        design = newDesign();
    }
    /// Waits until the window shows the design with this value.
    void waitToShow(const std::string& name, const std::string& value) {
        design[name] = value;
        window->waitFor(expectedOf(design));
    }
    void setThrust(const std::string& thrust) {
        window->click("check box", "Thrust " + thrust);
        waitToShow("Thrust", thrust);
    }
    std::filesystem::path path(const std::string& name) const {
        return program.folder().path() / name;
    }
    /// Waits until a file in the application folder holds a text.
    void waitForFile(const std::string& name, const std::string& text) const {
        waitFor(name + " to hold " + text,
                [&] { return program.folder().read(name).find(text) != std::string::npos; });
    }
    /// What the command line tool prints about the application folder.
    std::string tool(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--app", path("")});
        const ToolRun run =
            runTool(path(""), std::move(arguments), "XDG_DATA_HOME=" + program.dataHome().string());
        EXPECT_EQ(run.status, 0) << run.errors;
        return run.output;
    }

    RunningProgram program;
    std::optional<MainWindow> window;
    Design design;
};

}  // namespace fleetwright
