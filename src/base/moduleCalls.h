#pragma once

// What the system does with modules, one source a system. No module here is null.

#include <filesystem>

namespace fleetwright::moduleCalls {

/// Loads a module by its absolute path; null if that is not possible.
void* load(const std::filesystem::path& file);
void unload(void* module);
void* symbol(void* module, const char* name);

}  // namespace fleetwright::moduleCalls
