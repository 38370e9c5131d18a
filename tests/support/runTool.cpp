#include "runTool.h"

#include "TemporaryFolder.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>

namespace fleetwright {

ToolRun runTool(const std::string& folder, std::vector<std::string> arguments,
                std::string variable) {
    const TemporaryFolder capture;
    const std::string output = capture.write("output", "");
    const std::string errors = capture.write("errors", "");
    std::string tool = APP_FOLDER "/fleetwright-cli";
    std::vector<char*> argv = {tool.data()};
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);

    const pid_t child = fork();
    if (child == 0) {
        char* environment[] = {variable.empty() ? nullptr : variable.data(), nullptr};
        const bool isReady = chdir(folder.c_str()) == 0 &&
                             std::freopen("/dev/null", "r", stdin) != nullptr &&
                             std::freopen(output.c_str(), "w", stdout) != nullptr &&
                             std::freopen(errors.c_str(), "w", stderr) != nullptr;
        if (isReady) {
            execve(tool.c_str(), argv.data(), environment);
        }
        _exit(126);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) {
        throw std::runtime_error("the tool could not be started");
    }
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status), capture.read("output"),
            capture.read("errors")};
}

}  // namespace fleetwright
