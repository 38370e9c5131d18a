#include "FileLock.h"

#include "fileCalls.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

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
    if (isLocked(file, ifTaken)) {
        m_state = isGone(file) ? State::Gone : State::Held;
    } else {
        m_state = GetLastError() == ERROR_LOCK_VIOLATION ? State::WithOthers : State::Unknown;
    }
    m_file = _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_RDONLY | _O_NOINHERIT);
}

FileLock::~FileLock() {
    if (m_file >= 0) {
        _close(m_file);
    }
}

}  // namespace fleetwright
