#pragma once

#include "Fault.h"

#include <filesystem>
#include <string_view>
#include <vector>

namespace fleetwright {

/// Everything that is wrong with the text of a map file, by line; what it lacks comes last.
/// Outlines are looked for in the application folder.
std::vector<Fault> checkMapFile(std::string_view text, const std::filesystem::path& appFolder);

}  // namespace fleetwright
