#pragma once

#include "Fault.h"

#include <filesystem>
#include <string_view>
#include <vector>

namespace fleetwright {

/// What is wrong with the lines of a map file, by line, and whether it lacks an outline. Outlines
/// are looked for in the application folder. What the lines say about places is not looked at.
std::vector<Fault> checkMapFile(std::string_view text, const std::filesystem::path& appFolder);

}  // namespace fleetwright
