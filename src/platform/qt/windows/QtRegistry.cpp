#include "QtRegistry.h"

#include <windows.h>

#include <array>

namespace fleetwright {

std::optional<Registry::Value> QtRegistry::read(const std::string& key, const std::string& name) {
    // As it stands there, with its type, which Qt would turn into a text. What is longer is no
    // path.
    std::array<char, 1024> bytes{};
    DWORD type = 0;
    DWORD size = bytes.size();
    HKEY opened = nullptr;
    // To look at it alone: only administrators may do more.
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key.c_str(), 0, KEY_QUERY_VALUE, &opened) !=
        ERROR_SUCCESS) {
        return std::nullopt;
    }
    const LSTATUS status = RegQueryValueExA(opened, name.c_str(), nullptr, &type,
                                            reinterpret_cast<BYTE*>(bytes.data()), &size);
    RegCloseKey(opened);
    return status == ERROR_SUCCESS ? std::optional(Value{type, std::string(bytes.data(), size)})
                                   : std::nullopt;
}

}  // namespace fleetwright
