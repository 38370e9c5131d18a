#include "FileLock.h"

#include "fileCalls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace fleetwright {

namespace {

/// Locks an open file. An answer to a signal does not end the waiting.
bool isLocked(int file, FileLock::IfTaken ifTaken) {
    const int how = LOCK_EX | (ifTaken == FileLock::IfTaken::Wait ? 0 : LOCK_NB);
    int result = 0;
    do {
        result = flock(file, how);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

}  // namespace

FileLock::FileLock(const std::filesystem::path& path, IfTaken ifTaken) {
    if (objection(FileCall::Lock, path)) {
        return;
    }
    const int opened = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    m_file = opened;
    struct stat file{};
    if (opened < 0) {
        m_state = errno == ENOENT ? State::Gone : State::Unknown;
    } else if (!isLocked(opened, ifTaken)) {
        m_state = errno == EWOULDBLOCK ? State::WithOthers : State::Unknown;
    } else if (fstat(opened, &file) == 0) {
        m_state = file.st_nlink == 0 ? State::Gone : State::Held;
    }
}

FileLock::~FileLock() {
    if (m_file >= 0) {
        close(static_cast<int>(m_file));
    }
}

}  // namespace fleetwright
