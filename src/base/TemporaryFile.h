#pragma once

#include "FileLock.h"
#include "OpenFile.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <system_error>

namespace fleetwright {

/// Takes the next piece of a file.
using FileOut = std::function<void(std::string_view piece)>;
/// Hands all contents of a file out, piece by piece and the same whenever it is called.
using FileContents = std::function<void(const FileOut& out)>;

/// A new file beside another one, gone with this object unless it is renamed. None of its functions
/// throws by itself; the error is empty where all went well.
///
/// It is locked as long as this object lives. Those that a kill has left behind are free, and are
/// known by that.
class TemporaryFile {
public:
    /// Whether a file has a name as these have.
    static bool isOne(const std::filesystem::path& file);
    /// Takes those away that killed runs have left in a folder, but none that a run works on.
    static void takeLeftOnesAway(const std::filesystem::path& folder);

    /// Makes the file. If that fails, `error` says why.
    TemporaryFile(const std::filesystem::path& beside, std::error_code& error);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::filesystem::path& path() const { return m_path; }
    /// The empty file, open for writing.
    OpenFile& file() { return *m_file; }
    /// Writes all that is to be in it, so that it outlasts a power cut, and closes it.
    std::error_code write(std::string_view contents);
    /// The same for contents that are made as they are written. Throws what those throw.
    std::error_code write(const FileContents& contents);
    /// Puts it in the place of another file, where it stays, in the same folder for good. An error
    /// may mean that it is there, but not for sure.
    std::error_code rename(const std::filesystem::path& target);
    /// The same, but never in the place of anything: fails with `file_exists`.
    std::error_code renameToNew(const std::filesystem::path& target);
    /// Whether it stands there.
    bool isRenamed() const { return m_isRenamed; }

private:
    std::error_code noteRenamed(std::error_code error);

    std::filesystem::path m_path;
    std::optional<OpenFile> m_file;
    std::optional<FileLock> m_lock;
    bool m_isRenamed = false;
};

}  // namespace fleetwright
