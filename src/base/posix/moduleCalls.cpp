#include "moduleCalls.h"

#include <dlfcn.h>

namespace fleetwright::moduleCalls {

void* load(const std::filesystem::path& file) {
    // Modules of ours are bound at once as they are linked; the large libraries behind them are
    // loaded in less time if their calls are not.
    return dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
}

void unload(void* module) {
    dlclose(module);
}

void* symbol(void* module, const char* name) {
    return dlsym(module, name);
}

}  // namespace fleetwright::moduleCalls
