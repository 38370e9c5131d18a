#include "moduleCalls.h"

#include <windows.h>

namespace fleetwright::moduleCalls {

void* load(const std::filesystem::path& file) {
    return LoadLibraryW(file.c_str());
}

void unload(void* module) {
    FreeLibrary(static_cast<HMODULE>(module));
}

void* symbol(void* module, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module), name));
}

}  // namespace fleetwright::moduleCalls
