#include "userPlaces.h"

#include "Error.h"

#include <windows.h>

#include <cstdlib>
#include <string>

namespace fleetwright::userPlaces {

namespace fs = std::filesystem;

namespace {

fs::path userFolder(const wchar_t* name) {
    const wchar_t* const value = _wgetenv(name);
    const fs::path folder = value == nullptr ? fs::path() : fs::path(value);
    if (!folder.is_absolute()) {
        throw FileError(fs::path(L'%' + std::wstring(name) + L'%'), "the user has no such folder");
    }
    return folder;
}

}  // namespace

fs::path data() {
    return userFolder(L"APPDATA");
}

fs::path cache() {
    return userFolder(L"LOCALAPPDATA");
}

fs::path executable() {
    constexpr DWORD longest = 32768;  // characters of a path, at the most
    std::wstring file(longest, L'\0');
    file.resize(GetModuleFileNameW(nullptr, file.data(), longest));
    return file;
}

}  // namespace fleetwright::userPlaces
