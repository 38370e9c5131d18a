#include "saveFile.h"

#include "Error.h"
#include "TemporaryFile.h"
#include "fileCalls.h"

#include <csignal>
#include <mutex>
#include <set>
#include <system_error>

#if __has_include(<unistd.h>)
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const fs::path& target, const std::error_code& why) {
    throw FileError(target, "cannot be saved: " + why.message());
}

/// Why an existing file may not be written to, if that is so.
std::error_code writeProtection([[maybe_unused]] const fs::path& file,
                                const fs::file_status& status) {
    constexpr fs::perms anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if ((status.permissions() & anyWrite) == fs::perms::none) {
        // Protected, even from those who may do anything.
        return std::make_error_code(std::errc::permission_denied);
    }
#if __has_include(<unistd.h>)
    if (access(file.c_str(), W_OK) != 0) {
        return lastError();
    }
#endif
    return {};
}

/// Gives `file` the owner of `other`, as far as that is allowed.
void takeOwner([[maybe_unused]] const fs::path& file, [[maybe_unused]] const fs::path& other) {
#if __has_include(<unistd.h>)
    struct stat owner {};
    if (stat(other.c_str(), &owner) == 0) {
        [[maybe_unused]] const int notAllowed = chown(file.c_str(), owner.st_uid, owner.st_gid);
    }
#endif
}

/// Takes away what killed saves have left in a folder, when this run saves there for the first
/// time.
void tidyOnce(const fs::path& folder) {
    static std::mutex mutex;
    static std::set<fs::path> tidied;
    if (const std::lock_guard lock(mutex); tidied.insert(folder).second) {
        TemporaryFile::takeLeftOnesAway(folder);
    }
}

/// The file that a chain of links ends at, also where that file does not exist yet. A chain
/// without an end still gives a link.
fs::path linkTarget(fs::path path) {
    constexpr int mostLinks = 40;
    std::error_code error;
    for (int i = 0; i < mostLinks && fs::is_symlink(path, error); ++i) {
        const fs::path next = fs::read_symlink(path, error);
        if (error) {
            break;
        }
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
    return path;
}

}  // namespace

void saveFile(const fs::path& target, std::string_view contents) {
    const fs::path file = linkTarget(target);
    std::error_code ignored;
    if (fs::is_symlink(file, ignored)) {
        fail(target, std::make_error_code(std::errc::too_many_symbolic_link_levels));
    }
    const fs::file_status status = fs::status(file, ignored);
    if (const std::error_code noFile = whyNoFile(status)) {
        fail(target, noFile);
    }

    // The rename would replace a write-protected file without a question.
    if (fs::exists(status)) {
        if (const std::error_code protection = writeProtection(file, status)) {
            fail(target, protection);
        }
    }

    tidyOnce(file.parent_path());
    std::error_code error;
    TemporaryFile temporary(file, error);
    if (error) {
        fail(target, error);
    }
    // Before there is anything in it that others should not read.
    if (fs::exists(status)) {
        takeOwner(temporary.path(), file);
        error = temporary.file().setMode(status.permissions());
    }
    error = error ? error : temporary.write(contents);
    error = error ? error : temporary.rename(file);
    if (error) {
        fail(target, error);
    }
}

void letFileSizeLimitFail() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace fleetwright
