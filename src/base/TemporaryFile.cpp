#include "TemporaryFile.h"

#include <cerrno>
#include <mutex>
#include <random>
#include <set>
#include <string>
#include <string_view>

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

void TemporaryFile::takeLeftOnesAway(const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? "." : folder, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (!name.starts_with(beginning) || !name.ends_with(ending)) {
            continue;
        }
        const FileLock lock(entry->path());
        if (lock.isHeld()) {
            std::error_code gone;
            fs::remove(entry->path(), gone);
        }
    }
}

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
        m_lock.emplace(path);
    } while (m_lock->isLost());
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
