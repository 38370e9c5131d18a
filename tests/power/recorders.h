#pragma once

#include "Disk.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

/// Runs a shell command in a folder and says all that it has changed there, in order; nothing where
/// the system does not permit this way to learn it. Throws std::runtime_error if the command fails.
using Recorder = std::optional<std::vector<Change>>(const std::filesystem::path& folder,
                                                    const std::string& command);

/// By a file system of its own, mounted over the folder.
Recorder recordByMount;

/// By the calls of the system that strace sees.
Recorder recordByTrace;

}  // namespace fleetwright
