#include "runToEnd.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

namespace fleetwright {

namespace fs = std::filesystem;

bool runToEnd(const fs::path& program, const std::string& argument, const fs::path& folder) {
    // Found from here, and not from the folder in which it is to run.
    std::string file = fs::absolute(program).string();
    std::string word = argument;
    char* const words[] = {file.data(), word.data(), nullptr};
    pid_t process = 0;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    const bool isStarted =
        posix_spawn_file_actions_addchdir_np(&actions, folder.c_str()) == 0 &&
        posix_spawn(&process, file.c_str(), &actions, nullptr, words, environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    pid_t ended = -1;
    while (isStarted && (ended = waitpid(process, &status, 0)) < 0 && errno == EINTR) {
    }
    return ended >= 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace fleetwright
