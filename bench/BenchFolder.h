#pragma once

#include <filesystem>

namespace fleetwright {

/// A folder of this run's own for the files that benchmarks read; gone when the program ends.
const std::filesystem::path& benchFolder();

}  // namespace fleetwright
