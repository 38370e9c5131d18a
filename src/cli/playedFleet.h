#pragma once

#include "Fleet.h"

#include <filesystem>

namespace fleetwright {

struct Options;

/// Saves the page by which a fleet in this folder is played. Ships that do not load are left out
/// without a word; sheets that cannot be drawn are named on standard error. Returns an ExitStatus.
/// Throws Error.
int savePlayedFleet(const Options& options, const Fleet& fleet, const std::filesystem::path& folder,
                    const std::filesystem::path& out);

}  // namespace fleetwright
