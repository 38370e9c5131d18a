#include "loadPictures.h"

#include "Error.h"

#if __has_include(<dlfcn.h>)
#include <dlfcn.h>
#else
#include <windows.h>
#endif

namespace fleetwright {

namespace {

constexpr const char* functionName = "createPictures";

/// The module's function, or null.
CreatePictures find(const std::filesystem::path& module) {
#if __has_include(<dlfcn.h>)
    void* const handle = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
    return handle == nullptr ? nullptr
                             : reinterpret_cast<CreatePictures>(dlsym(handle, functionName));
#else
    const HMODULE handle = LoadLibraryW(module.c_str());
    return handle == nullptr
               ? nullptr
               : reinterpret_cast<CreatePictures>(GetProcAddress(handle, functionName));
#endif
}

}  // namespace

const Pictures& loadPictures(const std::filesystem::path& programFolder) {
    const std::filesystem::path module = programFolder / picturesModule;
    const CreatePictures create = find(module);
    if (create == nullptr) {
        throw FileError(module, "cannot be loaded");
    }
    return *create();
}

}  // namespace fleetwright
