#include "modules.h"

#include "OpenFile.h"

#include <system_error>

#include <dlfcn.h>

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
    // Modules of ours are bound at once as they are linked; the large libraries behind them are
    // loaded in less time if their calls are not.
    return isPlainFile(file) ? dlopen(placeOf(file).c_str(), RTLD_LAZY | RTLD_LOCAL) : nullptr;
}

void freeModule(void* module) {
    if (module != nullptr) {
        dlclose(module);
    }
}

void* moduleSymbol(void* module, const char* name) {
    return module == nullptr ? nullptr : dlsym(module, name);
}

}  // namespace fleetwright
