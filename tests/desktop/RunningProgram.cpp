#include "RunningProgram.h"

#include "ScreenReader.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace fleetwright {

namespace fs = std::filesystem;

RunningProgram::RunningProgram() {
    for (const fs::directory_entry& entry : fs::directory_iterator(APP_FOLDER)) {
        const fs::path name = entry.path().filename();
        if (name != "images" && name != "fleetwright-cli") {
            fs::copy(entry.path(), m_folder.path() / name, fs::copy_options::recursive);
        }
    }
}

RunningProgram::~RunningProgram() {
    if (isRunning()) {
        crash();
    } else if (!m_isAwaited) {
        ADD_FAILURE() << "the program has ended by itself, with status " << m_status;
    }
}

void RunningProgram::start() {
    const std::string program = m_folder.path() / "FleetWright";
    const std::string settings = m_folder.path() / "settings";
    const std::string data = dataHome();
    m_isAwaited = false;
    m_process = fork();
    if (m_process == 0) {
        setenv("XDG_CONFIG_HOME", settings.c_str(), 1);
        setenv("XDG_DATA_HOME", data.c_str(), 1);
        execl(program.c_str(), program.c_str(), nullptr);
        _exit(126);
    }
    if (m_process < 0) {
        throw std::runtime_error("the program could not be started");
    }
}

bool RunningProgram::isRunning() {
    int status = 0;
    if (m_process != 0 && waitpid(m_process, &status, WNOHANG) == m_process) {
        m_process = 0;
        m_status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    return m_process != 0;
}

void RunningProgram::crash() {
    m_isAwaited = true;
    kill(m_process, SIGKILL);
    waitpid(m_process, nullptr, 0);
    m_process = 0;
}

int RunningProgram::waitForEnd() {
    m_isAwaited = true;
    waitFor("the program to end", [this] { return !isRunning(); });
    return m_status;
}

}  // namespace fleetwright
