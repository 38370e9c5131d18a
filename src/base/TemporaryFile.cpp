#include "TemporaryFile.h"

#include <cerrno>
#include <mutex>
#include <random>
#include <set>
#include <string>
#include <string_view>

#if __has_include(<unistd.h>)
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view beginning = ".fleetwright-";
constexpr std::string_view ending = ".tmp";

std::string newName() {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::uniform_int_distribution<std::size_t> pick(0, letters.size() - 1);
    std::string name(beginning);
    for (int i = 0; i < 10; ++i) {
        name += letters[pick(random)];
    }
    return name.append(ending);
}

}  // namespace

#if __has_include(<unistd.h>)

/// The lock of a file. It goes with its program, however that ends.
class TemporaryFile::Lock {
public:
    /// Takes over `file`. One that could not be opened is not locked.
    explicit Lock(int file) : m_file(file) {
        if (flock(file, LOCK_EX | LOCK_NB) != 0) {
            m_fault = errno;
        }
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    ~Lock() { close(m_file); }

    bool isHeld() const { return m_fault == 0; }
    /// Whether somebody has taken the file for one left behind, before it was locked.
    bool isTaken() const {
        struct stat file {};
        return m_fault == EWOULDBLOCK || (fstat(m_file, &file) == 0 && file.st_nlink == 0);
    }

private:
    int m_file;
    int m_fault = 0;
};

void TemporaryFile::takeLeftOnesAway(const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? "." : folder, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (!name.starts_with(beginning) || !name.ends_with(ending)) {
            continue;
        }
        const Lock lock(
            open(entry->path().c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (lock.isHeld()) {
            std::error_code gone;
            fs::remove(entry->path(), gone);
        }
    }
}

#else

class TemporaryFile::Lock {
public:
    static bool isTaken() { return false; }
};

void TemporaryFile::takeLeftOnesAway(const fs::path&) {}

#endif

TemporaryFile::TemporaryFile(const fs::path& beside, std::error_code& error) {
    const fs::path folder = beside.parent_path();
    static std::mutex mutex;
    static std::set<fs::path> tidied;
    if (const std::lock_guard lock(mutex); tidied.insert(folder).second) {
        takeLeftOnesAway(folder);
    }
    do {
        if (m_stream != nullptr) {
            std::fclose(m_stream);
        }
        const fs::path path = folder / newName();
        m_stream = std::fopen(path.string().c_str(), "wbx");
        if (m_stream == nullptr) {
            error = {errno, std::generic_category()};
            return;
        }
        m_path = path;
#if __has_include(<unistd.h>)
        m_lock = std::make_unique<Lock>(fcntl(fileno(m_stream), F_DUPFD_CLOEXEC, 0));
#else
        m_lock = std::make_unique<Lock>();
#endif
    } while (m_lock->isTaken());
}

TemporaryFile::~TemporaryFile() {
    if (!m_path.empty()) {
        std::error_code ignored;
        fs::remove(m_path, ignored);
    }
}

void TemporaryFile::rename(const fs::path& target, std::error_code& error) {
    fs::rename(m_path, target, error);
    if (!error) {
        m_path.clear();
    }
}

}  // namespace fleetwright
