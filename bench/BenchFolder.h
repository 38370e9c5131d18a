#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace fleetwright {

/// A folder of this run's own in memory, where the system has such, so that programs that make sure
/// of their files on the disk compare with others that do not; gone when the program ends.
const std::filesystem::path& memoryFolder();

/// A folder of this run's own for the files that benchmarks read; gone when the program ends.
const std::filesystem::path& benchFolder();

/// 10,000 ship files there: copies of the sample ships.
const std::vector<std::string>& shipFiles();

}  // namespace fleetwright
