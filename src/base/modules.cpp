#include "modules.h"

#include "OpenFile.h"
#include "moduleCalls.h"

#include <system_error>

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
    return isPlainFile(file) ? moduleCalls::load(placeOf(file)) : nullptr;
}

void freeModule(void* module) {
    if (module != nullptr) {
        moduleCalls::unload(module);
    }
}

void* moduleSymbol(void* module, const char* name) {
    return module == nullptr ? nullptr : moduleCalls::symbol(module, name);
}

}  // namespace fleetwright
