#pragma once

#include "picturesModule.h"

#include <filesystem>

namespace fleetwright {

/// Loads the module that knows of picture files and documents, for as long as the program lives.
/// Throws FileError.
const Pictures& loadPictures(const std::filesystem::path& programFolder);

}  // namespace fleetwright
