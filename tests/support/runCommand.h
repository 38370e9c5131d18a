#pragma once

#include <string>

namespace fleetwright {

/// What a command has said, on both streams, and its exit status.
struct CommandResult {
    int status = -1;
    std::string output;
};

/// Runs a command in the shell and waits for its end.
CommandResult runCommand(const std::string& command);

}  // namespace fleetwright
