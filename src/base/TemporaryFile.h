#pragma once

#include "FileLock.h"

#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

namespace fleetwright {

/// A new file beside another one, gone with this object unless it is renamed.
///
/// It is locked as long as this object lives. Those that a kill has left behind are free, and the
/// first one that a program makes in a folder takes them away.
class TemporaryFile {
public:
    /// Makes the file. If that fails, `error` says why.
    TemporaryFile(const std::filesystem::path& beside, std::error_code& error);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::filesystem::path& path() const { return m_path; }
    /// The empty file, open for writing, for whoever closes it.
    std::FILE* stream() const { return m_stream; }
    /// Puts it in the place of another file, where it stays.
    void rename(const std::filesystem::path& target, std::error_code& error);

private:
    static void takeLeftOnesAway(const std::filesystem::path& folder);

    std::filesystem::path m_path;
    std::FILE* m_stream = nullptr;
    std::optional<FileLock> m_lock;
};

}  // namespace fleetwright
