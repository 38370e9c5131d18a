#pragma once

#include <filesystem>
#include <string>

namespace fleetwright {

/// Runs a program with one argument in a folder, with no shell between, and waits for its end;
/// whether it could be run and ended by itself and well. What it says goes where this program's own
/// words go.
bool runToEnd(const std::filesystem::path& program, const std::string& argument,
              const std::filesystem::path& folder);

}  // namespace fleetwright
