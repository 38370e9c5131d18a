#include "modules.h"

#include <system_error>

#if __has_include(<dlfcn.h>)
#include <dlfcn.h>
#else
#include <windows.h>
#endif

namespace fleetwright {

namespace {

/// A bare name would be looked for in other places than the current folder.
std::filesystem::path placeOf(const std::filesystem::path& file) {
    std::error_code unknown;
    return std::filesystem::absolute(file, unknown);
}

}  // namespace

#if __has_include(<dlfcn.h>)

void* loadModule(const std::filesystem::path& file) {
    return dlopen(placeOf(file).c_str(), RTLD_NOW | RTLD_LOCAL);
}

void freeModule(void* module) {
    if (module != nullptr) {
        dlclose(module);
    }
}

void* moduleSymbol(void* module, const char* name) {
    return module == nullptr ? nullptr : dlsym(module, name);
}

#else

void* loadModule(const std::filesystem::path& file) {
    return LoadLibraryW(placeOf(file).c_str());
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

#endif

}  // namespace fleetwright
