#include "entryCalls.h"

#include "paths.h"
#include "systemError.h"
#include "text.h"

#include <windows.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace fleetwright::entryCalls {

namespace fs = std::filesystem;

namespace {

std::error_code errorUnlessMoved(BOOL isMoved) {
    return isMoved != 0 ? std::error_code() : systemError();
}

HANDLE openedFor(DWORD access, const fs::path& file) {
    return CreateFileW(file.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// Names that belong to devices, with whatever ending.
bool isDevice(const fs::path& name) {
    std::string stem = toCapitals(pathText(name));
    stem = stem.substr(0, stem.find('.'));
    stem.resize(stem.find_last_not_of(' ') + 1);
    constexpr std::string_view devices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    if (std::find(std::begin(devices), std::end(devices), stem) != std::end(devices)) {
        return true;
    }
    const std::string_view number =
        std::string_view(stem).substr(std::min<std::size_t>(stem.size(), 3));
    constexpr std::string_view numbers[] = {"1", "2", "3", "4",      "5",      "6",
                                            "7", "8", "9", "\u00B9", "\u00B2", "\u00B3"};
    return (stem.starts_with("COM") || stem.starts_with("LPT")) &&
           std::find(std::begin(numbers), std::end(numbers), number) != std::end(numbers);
}

}  // namespace

std::error_code rename(const fs::path& from, const fs::path& to) {
    // Written through: nothing else makes a name outlast a power cut here.
    return errorUnlessMoved(
        MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

bool renamesToNew(const fs::path& from, const fs::path& to, std::error_code& error) {
    error = errorUnlessMoved(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH));
    return true;
}

std::error_code exchange(const fs::path&, const fs::path&) {
    return std::make_error_code(std::errc::function_not_supported);
}

std::error_code makePrivateFolder(const fs::path& folder) {
    // It has its access list from the user's own folder, in which it stands.
    return CreateDirectoryW(folder.c_str(), nullptr) != 0 ? std::error_code() : systemError();
}

std::error_code syncFolder(const fs::path&) {
    return {};  // renames are written through, and the journal of the file system does the rest
}

std::vector<fs::directory_entry> entriesIn(const fs::path& folder, std::error_code& error) {
    // The library's iterators know no path of more than 260 characters.
    std::vector<fs::directory_entry> entries;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileExW((folder / L"*").c_str(), FindExInfoBasic, &found,
                                           FindExSearchNameMatch, nullptr, 0);
    bool isFound = search != INVALID_HANDLE_VALUE;
    while (isFound) {
        const std::wstring_view name = found.cFileName;
        if (name != L"." && name != L"..") {
            std::error_code gone;
            entries.emplace_back(folder / name, gone);
        }
        isFound = FindNextFileW(search, &found) != 0;
    }
    error = GetLastError() == ERROR_NO_MORE_FILES ? std::error_code() : systemError();
    if (search != INVALID_HANDLE_VALUE) {
        FindClose(search);
    }
    std::error_code unknown;
    const fs::file_status status = fs::status(folder, unknown);
    if (error && fs::exists(status) && !fs::is_directory(status)) {
        error =
            std::make_error_code(std::errc::not_a_directory);  // as the system does not always say
    }
    return entries;
}

std::error_code mayWrite(const fs::path& file) {
    // Its access list is not for us to read: the system says what comes of it.
    const HANDLE handle = openedFor(FILE_WRITE_DATA, file);
    if (handle == INVALID_HANDLE_VALUE) {
        return systemError();
    }
    CloseHandle(handle);
    return {};
}

std::uintmax_t nameCount(const fs::path& file) {
    const HANDLE handle = openedFor(FILE_READ_ATTRIBUTES, file);
    BY_HANDLE_FILE_INFORMATION about{};
    const bool isKnown =
        handle != INVALID_HANDLE_VALUE && GetFileInformationByHandle(handle, &about) != 0;
    if (handle != INVALID_HANDLE_VALUE) {
        CloseHandle(handle);
    }
    return isKnown ? about.nNumberOfLinks : 0;
}

const char* whyNoName(const fs::path& file) {
    const std::string name = pathText(file.filename());
    if (isDevice(file.filename())) {
        return "Windows keeps this name for a device";
    }
    if (name.find_first_of("<>:\"|?*") != std::string::npos) {
        return "on Windows a name has none of < > : \" | ? *";
    }
    const bool isFolder = name == "." || name == "..";
    return !isFolder && (name.ends_with('.') || name.ends_with(' '))
               ? "on Windows no name ends in a dot or a blank"
               : "";
}

}  // namespace fleetwright::entryCalls
