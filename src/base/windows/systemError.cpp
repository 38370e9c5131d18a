#include "systemError.h"

#include <windows.h>

#include <string>

namespace fleetwright {

namespace {

/// A file that another program has open and does not share: no right is missing, so that who meets
/// it can do something about it.
class HeldFileCategory : public std::error_category {
public:
    const char* name() const noexcept override { return "held file"; }
    std::string message(int) const override { return "another program has it open"; }
    bool equivalent(int, const std::error_condition& meaning) const noexcept override {
        return meaning == std::errc::permission_denied;
    }
};

bool isHeld(DWORD code) {
    return code == ERROR_SHARING_VIOLATION || code == ERROR_LOCK_VIOLATION ||
           code == ERROR_USER_MAPPED_FILE;
}

std::errc meaningOf(DWORD code) {
    switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DELETE_PENDING:
        return std::errc::no_such_file_or_directory;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
        return std::errc::permission_denied;
    case ERROR_WRITE_PROTECT:
        return std::errc::read_only_file_system;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return std::errc::file_exists;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return std::errc::no_space_on_device;
    case ERROR_FILENAME_EXCED_RANGE:
        return std::errc::filename_too_long;
    case ERROR_INVALID_NAME:
    case ERROR_INVALID_PARAMETER:
        return std::errc::invalid_argument;
    case ERROR_DIRECTORY:
        return std::errc::not_a_directory;
    case ERROR_DIR_NOT_EMPTY:
        return std::errc::directory_not_empty;
    case ERROR_NOT_SAME_DEVICE:
        return std::errc::cross_device_link;
    case ERROR_TOO_MANY_OPEN_FILES:
        return std::errc::too_many_files_open;
    case ERROR_NOT_SUPPORTED:
    case ERROR_INVALID_FUNCTION:
    case ERROR_CALL_NOT_IMPLEMENTED:
        return std::errc::function_not_supported;
    case ERROR_BUSY:
        return std::errc::device_or_resource_busy;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
        return std::errc::not_enough_memory;
    default:
        return std::errc::io_error;
    }
}

}  // namespace

std::error_code systemError() {
    static const HeldFileCategory heldFile;
    const DWORD code = GetLastError();
    return isHeld(code) ? std::error_code(1, heldFile) : std::make_error_code(meaningOf(code));
}

}  // namespace fleetwright
