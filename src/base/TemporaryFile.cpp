#include "TemporaryFile.h"

#include "fileCalls.h"

#include <cstddef>
#include <mutex>
#include <random>
#include <string>
#include <string_view>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view beginning = ".fleetwright-";
constexpr std::string_view ending = ".tmp";

std::string newName() {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789";
    // One for all, since it takes long to find its source.
    static std::mutex mutex;
    static std::random_device random;
    const std::lock_guard lock(mutex);
    std::uniform_int_distribution<std::size_t> pick(0, letters.size() - 1);
    std::string name(beginning);
    for (int i = 0; i < 10; ++i) {
        name += letters[pick(random)];
    }
    return name.append(ending);
}

}  // namespace

bool TemporaryFile::isOne(const fs::path& file) {
    const std::string name = file.filename().string();
    return name.starts_with(beginning) && name.ends_with(ending);
}

void TemporaryFile::takeLeftOnesAway(const fs::path& folder) {
    std::error_code unread;
    for (const fs::directory_entry& entry : folderEntries(folder, unread)) {
        if (!isOne(entry.path())) {
            continue;
        }
        const FileLock lock(entry.path());
        if (lock.isHeld()) {
            [[maybe_unused]] const std::error_code left = removeFile(entry.path());
        }
    }
}

TemporaryFile::TemporaryFile(const fs::path& beside, std::error_code& error) {
    do {
        m_path = beside.parent_path() / newName();
        m_file.emplace(m_path, OpenFile::Use::Create, error);
        if (error) {
            m_path.clear();
            return;
        }
        m_lock.emplace(m_path);
    } while (m_lock->isLost());
}

TemporaryFile::~TemporaryFile() {
    if (!m_path.empty()) {
        [[maybe_unused]] const std::error_code left = removeFile(m_path);
    }
}

std::error_code TemporaryFile::write(std::string_view contents) {
    std::error_code error = m_file->write(contents);
    error = error ? error : m_file->sync();
    const std::error_code notClosed = m_file->close();
    return error ? error : notClosed;
}

std::error_code TemporaryFile::write(const FileContents& contents) {
    constexpr std::size_t enough = std::size_t{1} << 18U;  // bytes for a call of the system
    std::string waiting;
    const auto put = [&](std::string_view bytes) {
        if (const std::error_code error = m_file->write(bytes)) {
            throw std::system_error(error);  // whoever makes contents need not know
        }
    };
    try {
        contents([&](std::string_view piece) {
            if (waiting.size() + piece.size() < enough) {
                waiting += piece;
            } else {
                put(waiting);
                put(piece);
                waiting.clear();
            }
        });
        put(waiting);
    } catch (const std::system_error& error) {
        [[maybe_unused]] const std::error_code further = m_file->close();
        return error.code();
    }
    return write(std::string_view());
}

std::error_code TemporaryFile::rename(const fs::path& target) {
    return noteRenamed(renameForGood(m_path, target));
}

std::error_code TemporaryFile::renameToNew(const fs::path& target) {
    return noteRenamed(fleetwright::renameToNew(m_path, target));
}

std::error_code TemporaryFile::noteRenamed(std::error_code error) {
    std::error_code unknown;
    m_isRenamed = !error || fs::symlink_status(m_path, unknown).type() == fs::file_type::not_found;
    if (m_isRenamed) {
        m_path.clear();
    }
    return error;
}

}  // namespace fleetwright
