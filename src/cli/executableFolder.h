#pragma once

#include <filesystem>

namespace fleetwright {

/// The folder of the running program. `argv0`, the name that it was called by, serves where the
/// system does not tell.
std::filesystem::path executableFolder(const char* argv0);

}  // namespace fleetwright
