#pragma once

#include "GoalTable.h"

#include <filesystem>

namespace fleetwright {

/// Writes the results of a whole run as a page of the documentation: the machine, how busy it was,
/// the date, all goals, and the limits of those that are not met. Throws FileError.
void writePerformancePage(const std::filesystem::path& file,
                          const std::vector<GoalResult>& results);

}  // namespace fleetwright
