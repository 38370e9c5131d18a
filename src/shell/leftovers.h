#pragma once

#include <filesystem>

namespace fleetwright {

/// Takes away what killed saves of any run have left in the application folder and in those that
/// users save to by default, but nothing that another run is writing. For the start of the program.
/// Never fails: what cannot be taken away waits for the next start.
void takeLeftoversAway(const std::filesystem::path& appFolder);

}  // namespace fleetwright
