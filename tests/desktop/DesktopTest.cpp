#include "DesktopTest.h"

#include "runTool.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace fleetwright {

namespace fs = std::filesystem;

DesktopTest::DesktopTest() {
    for (const fs::directory_entry& entry : fs::directory_iterator(APP_FOLDER)) {
        const fs::path name = entry.path().filename();
        if (name != "images" && name != "fleetwright-cli") {
            fs::copy(entry.path(), folder.path() / name, fs::copy_options::recursive);
        }
    }
}

DesktopTest::~DesktopTest() {
    if (m_process != 0) {
        crash();
    }
}

void DesktopTest::startProgram(const char* file) {
    const std::string program = path("FleetWright");
    const pid_t process = fork();
    if (process == 0) {
        setenv("XDG_CONFIG_HOME", path("settings").c_str(), 1);
        setenv("XDG_DATA_HOME", path("data").c_str(), 1);
        execl(program.c_str(), program.c_str(), file, nullptr);
        _exit(126);
    }
    if (process < 0) {
        throw std::runtime_error("the program could not be started");
    }
    m_process = process;
}

void DesktopTest::start() {
    startProgram();
    window.emplace();
    design = newDesign();
    window->waitFor(expectedOf(design));
}

void DesktopTest::crash() {
    int status = 0;
    kill(m_process, SIGKILL);
    waitpid(std::exchange(m_process, 0), &status, 0);
    EXPECT_EQ(status, SIGKILL) << "the program has ended by itself";
}

std::string DesktopTest::loadedFiles() const {
    std::ifstream maps("/proc/" + std::to_string(m_process) + "/maps");
    return {std::istreambuf_iterator<char>(maps), {}};
}

int DesktopTest::waitForEnd() {
    int status = 0;
    waitFor("the program to end",
            [&] { return waitpid(m_process, &status, WNOHANG) == m_process; });
    m_process = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void DesktopTest::waitToShow(const std::string& name, const std::string& value) {
    design[name] = value;
    window->waitFor(expectedOf(design));
}

void DesktopTest::setThrust(const std::string& thrust) {
    window->click("radio button", "Thrust " + thrust);
    waitToShow("Thrust", thrust);
}

void DesktopTest::waitForFile(const std::string& name, const std::string& text) const {
    waitFor(name + " to hold " + text,
            [&] { return folder.read(name).find(text) != std::string::npos; });
}

std::string DesktopTest::tool(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"--app", path("")});
    const ToolRun run =
        runTool(path(""), std::move(arguments), "XDG_DATA_HOME=" + path("data").string());
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

}  // namespace fleetwright
