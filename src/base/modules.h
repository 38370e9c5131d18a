#pragma once

// Modules: parts of the program that are loaded while it runs. They lie beside the program.

#include <filesystem>

namespace fleetwright {

/// Loads a module, for as long as the program lives unless it is freed; null if that is not
/// possible. One that is loaded already is not loaded once more.
void* loadModule(const std::filesystem::path& file);

/// Undoes one `loadModule`; null is allowed.
void freeModule(void* module);

/// The address of what a module exports under this name; null if it has nothing of that name, or if
/// the module is null.
void* moduleSymbol(void* module, const char* name);

/// A function that a module exports, likewise.
template <typename Function>
Function moduleFunction(void* module, const char* name) {
    return reinterpret_cast<Function>(moduleSymbol(module, name));
}

}  // namespace fleetwright
