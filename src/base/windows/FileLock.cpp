#include "FileLock.h"

#include "fileCalls.h"

#include <windows.h>

#include <string>

namespace fleetwright {

namespace {

/// A byte that no file has: locks here keep others from reading what they cover.
OVERLAPPED lockedByte() {
    OVERLAPPED byte{};
    byte.OffsetHigh = 0x40000000;
    return byte;
}

bool isLocked(HANDLE file, FileLock::IfTaken ifTaken) {
    const DWORD how = LOCKFILE_EXCLUSIVE_LOCK |
                      (ifTaken == FileLock::IfTaken::Wait ? 0 : LOCKFILE_FAIL_IMMEDIATELY);
    OVERLAPPED byte = lockedByte();
    return LockFileEx(file, how, 0, 1, 0, &byte) != 0;
}

bool isGone(HANDLE file) {
    FILE_STANDARD_INFO about{};
    return GetFileInformationByHandleEx(file, FileStandardInfo, &about, sizeof about) != 0 &&
           (about.DeletePending != 0 || about.NumberOfLinks == 0);
}

/// A folder has no bytes to lock. Who has made something of this name has it, whatever became of
/// its own name; it goes with the process, however that ends. Null if others have it.
HANDLE lockOfFolder(const BY_HANDLE_FILE_INFORMATION& folder) {
    const std::wstring name =
        L"Global\\FleetWright-" + std::to_wstring(folder.dwVolumeSerialNumber) + L'-' +
        std::to_wstring(folder.nFileIndexHigh) + L'-' + std::to_wstring(folder.nFileIndexLow);
    const HANDLE lock = CreateEventW(nullptr, TRUE, FALSE, name.c_str());
    if (lock == nullptr || GetLastError() != ERROR_ALREADY_EXISTS) {
        return lock;
    }
    CloseHandle(lock);
    return nullptr;
}

HANDLE lockOfFolder(const BY_HANDLE_FILE_INFORMATION& folder, FileLock::IfTaken ifTaken) {
    constexpr DWORD pause = 20;  // milliseconds
    HANDLE lock = lockOfFolder(folder);
    while (lock == nullptr && ifTaken == FileLock::IfTaken::Wait) {
        Sleep(pause);
        lock = lockOfFolder(folder);
    }
    return lock;
}

}  // namespace

FileLock::FileLock(const std::filesystem::path& path, IfTaken ifTaken) {
    if (objection(FileCall::Lock, path)) {
        return;
    }
    // Others may do with the file what they like. Folders are opened like files.
    const HANDLE file = CreateFileW(
        path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
        OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        const bool isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ||
                               error == ERROR_DELETE_PENDING;
        m_state = isMissing ? State::Gone : State::Unknown;
        return;
    }
    m_file = reinterpret_cast<std::intptr_t>(file);
    BY_HANDLE_FILE_INFORMATION about{};
    if (GetFileInformationByHandle(file, &about) == 0) {
        return;
    }
    if ((about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        const HANDLE lock = lockOfFolder(about, ifTaken);
        CloseHandle(file);
        m_file = lock == nullptr ? -1 : reinterpret_cast<std::intptr_t>(lock);
        m_state = lock == nullptr ? State::WithOthers : State::Held;
    } else if (isLocked(file, ifTaken)) {
        m_state = isGone(file) ? State::Gone : State::Held;
    } else {
        m_state = GetLastError() == ERROR_LOCK_VIOLATION ? State::WithOthers : State::Unknown;
    }
}

FileLock::~FileLock() {
    if (m_file >= 0) {
        CloseHandle(reinterpret_cast<HANDLE>(m_file));
    }
}

}  // namespace fleetwright
