#include "runTool.h"

#include "TemporaryFolder.h"

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

namespace fleetwright {

namespace {

/// Opens both ends of a terminal that changes nothing of what goes through it.
bool openTerminal(int& reader, int& writer) {
    termios raw = {};
    cfmakeraw(&raw);
    return openpty(&reader, &writer, nullptr, &raw, nullptr) == 0;
}

/// All that is written until nobody holds the writing end any more.
std::string readToEnd(int reader) {
    std::string text;
    char buffer[4096];
    for (ssize_t count = 0; (count = read(reader, buffer, sizeof buffer)) > 0;) {
        text.append(buffer, static_cast<std::size_t>(count));
    }
    close(reader);
    return text;
}

int openToWrite(const std::string& file) {
    return open(file.c_str(), O_WRONLY | O_CLOEXEC);
}

}  // namespace

ToolRun runTool(const std::string& folder, std::vector<std::string> arguments, std::string variable,
                ToolOutput kind) {
    const TemporaryFolder capture;
    const int errors = openToWrite(capture.write("errors", ""));
    int output = openToWrite(capture.write("output", ""));
    int reader = -1;
    if (kind == ToolOutput::Terminal && !openTerminal(reader, output)) {
        throw std::runtime_error("there is no terminal");
    }
    std::string noLeaks = "ASAN_OPTIONS=detect_leaks=0";  // twice the time of such a short process
    std::string tool = APP_FOLDER "/fleetwright-cli";
    std::vector<char*> argv = {tool.data()};
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);

    const pid_t child = fork();
    if (child == 0) {
        char* environment[] = {noLeaks.data(), variable.empty() ? nullptr : variable.data(),
                               nullptr};
        const bool isReady = chdir(folder.c_str()) == 0 &&
                             dup2(open("/dev/null", O_RDONLY), STDIN_FILENO) >= 0 &&
                             dup2(output, STDOUT_FILENO) >= 0 && dup2(errors, STDERR_FILENO) >= 0;
        if (isReady) {
            execve(tool.c_str(), argv.data(), environment);
        }
        _exit(126);
    }
    close(output);
    close(errors);
    const std::string shown = reader < 0 ? "" : readToEnd(reader);
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) {
        throw std::runtime_error("the tool could not be started");
    }
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status),
            reader < 0 ? capture.read("output") : shown, capture.read("errors")};
}

}  // namespace fleetwright
