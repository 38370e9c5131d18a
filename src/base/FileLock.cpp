#include "FileLock.h"

#if __has_include(<unistd.h>)
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace fleetwright {

#if __has_include(<unistd.h>)

FileLock::FileLock(const std::filesystem::path& path)
    : m_file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC)) {
    struct stat file {};
    if (m_file < 0) {
        m_state = errno == ENOENT ? State::Gone : State::Unknown;
    } else if (flock(m_file, LOCK_EX | LOCK_NB) != 0) {
        m_state = errno == EWOULDBLOCK ? State::WithOthers : State::Unknown;
    } else if (fstat(m_file, &file) == 0) {
        m_state = file.st_nlink == 0 ? State::Gone : State::Held;
    }
}

FileLock::~FileLock() {
    if (m_file >= 0) {
        close(m_file);
    }
}

#else

FileLock::FileLock(const std::filesystem::path&) {}

FileLock::~FileLock() = default;

#endif

}  // namespace fleetwright
