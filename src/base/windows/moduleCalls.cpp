#include "moduleCalls.h"

#include <windows.h>

namespace fleetwright::moduleCalls {

void* load(const std::filesystem::path& file) {
    // What is wrong with one is for the program to say, not for a window of the system.
    DWORD before = 0;
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before);
    void* const module = LoadLibraryW(file.c_str());
    SetThreadErrorMode(before, nullptr);
    return module;
}

void unload(void* module) {
    FreeLibrary(static_cast<HMODULE>(module));
}

void* symbol(void* module, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module), name));
}

}  // namespace fleetwright::moduleCalls
