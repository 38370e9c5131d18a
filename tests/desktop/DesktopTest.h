#pragma once

#include "Hands.h"
#include "TemporaryFolder.h"
#include "Window.h"

#include <gtest/gtest.h>

#include <sys/types.h>

#include <optional>

namespace fleetwright {

/// A journey through the delivered program, which is held against the command line tool at every
/// step. It has an application folder, settings and user's data of its own.
class DesktopTest : public testing::Test {
protected:
    /// Copies the application folder, as it is before the first start.
    DesktopTest();
    /// Ends the program, which must not have ended by itself.
    ~DesktopTest() override;

    void startProgram(const char* file = nullptr);
    /// Starts the program and waits for its window with a new ship.
    void start();
    /// Ends the program without giving it a chance to do anything about it.
    void crash();
    /// The files that the program has loaded, among others of its memory.
    std::string loadedFiles() const;
    /// Waits for the program's end; its exit status, or -1 if a signal has ended it.
    int waitForEnd();

    /// Waits until the window shows the design with this value.
    void waitToShow(const std::string& name, const std::string& value);
    void setThrust(const std::string& thrust);
    std::filesystem::path path(const std::string& name) const { return folder.path() / name; }
    /// Waits until a file in the application folder holds a text.
    void waitForFile(const std::string& name, const std::string& text) const;
    /// What the command line tool prints about the application folder.
    std::string tool(std::vector<std::string> arguments) const;

    const TemporaryFolder folder;
    std::optional<MainWindow> window;
    Design design;

private:
    pid_t m_process = 0;  ///< 0 while the program does not run
};

}  // namespace fleetwright
