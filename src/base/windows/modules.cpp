#include "modules.h"

#include "OpenFile.h"

#include <system_error>

#include <windows.h>

namespace fleetwright {

namespace {

/// A bare name would be looked for in other places than the current folder.
std::filesystem::path placeOf(const std::filesystem::path& file) {
    std::error_code unknown;
    return std::filesystem::absolute(file, unknown);
}

/// The loader would wait for ever at a pipe.
bool isPlainFile(const std::filesystem::path& file) {
    std::error_code error;
    const OpenFile opened(file, OpenFile::Use::Read, error);
    return !error;
}

}  // namespace

void* loadModule(const std::filesystem::path& file) {
    return isPlainFile(file) ? LoadLibraryW(placeOf(file).c_str()) : nullptr;
}

void freeModule(void* module) {
    if (module != nullptr) {
        FreeLibrary(static_cast<HMODULE>(module));
    }
}

void* moduleSymbol(void* module, const char* name) {
    return module == nullptr
               ? nullptr
               : reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module), name));
}

}  // namespace fleetwright
