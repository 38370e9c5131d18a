#include "fileCalls.h"

#include <cerrno>
#include <utility>

#if __has_include(<unistd.h>)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#endif

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

FileCallHook fileCallHook;

/// What is no plain file has no word of its own among the system's errors.
class FileKindCategory : public std::error_category {
public:
    const char* name() const noexcept override { return "file kind"; }
    std::string message(int) const override { return "Not a plain file"; }
};

template <typename Call>
std::error_code unlessObjected(FileCall call, const fs::path& path, Call make) {
    std::error_code error = objection(call, path);
    if (!error) {
        make(error);
    }
    return error;
}

fs::path orCurrent(const fs::path& folder) {
    return folder.empty() ? fs::path(".") : folder;
}

#if __has_include(<unistd.h>)

std::error_code syncOpenFolder(const fs::path& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        if (errno != EACCES) {
            return lastError();
        }
        sync();  // who may write there, but not look, has everything synced instead
        return {};
    }
    // Some file systems have nothing to sync.
    const std::error_code error = errorUnless(fsync(descriptor) == 0 || errno == EINVAL);
    close(descriptor);
    return error;
}

#else

std::error_code syncOpenFolder(const fs::path&) {
    return {};
}

#endif

std::error_code renamed(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::rename(from, to, error);
    return error;
}

/// Whether the system can rename a file without the danger that it replaces another; if so, it has.
bool renamesToNew([[maybe_unused]] const fs::path& from, [[maybe_unused]] const fs::path& to,
                  [[maybe_unused]] std::error_code& error) {
#ifdef RENAME_NOREPLACE
    error =
        errorUnless(renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0);
    return error != std::errc::invalid_argument && error != std::errc::function_not_supported;
#else
    return false;
#endif
}

std::error_code andSync(std::error_code error, const fs::path& entry) {
    return error ? error : syncFolder(entry.parent_path());
}

}  // namespace

void hookFileCalls(FileCallHook hook) {
    fileCallHook = std::move(hook);
}

std::error_code objection(FileCall call, const fs::path& path) {
    return fileCallHook ? fileCallHook(call, path) : std::error_code();
}

std::error_code lastError() {
    return {errno, std::generic_category()};
}

std::error_code errorUnless(bool isDone) {
    return isDone ? std::error_code() : lastError();
}

std::error_code whyNoFile(const fs::file_status& status) {
    static const FileKindCategory fileKind;
    if (fs::is_directory(status)) {
        return std::make_error_code(std::errc::is_a_directory);
    }
    return fs::exists(status) && !fs::is_regular_file(status) ? std::error_code(1, fileKind)
                                                              : std::error_code();
}

std::error_code renameFile(const fs::path& from, const fs::path& to) {
    return unlessObjected(FileCall::Rename, to,
                          [&](std::error_code& error) { error = renamed(from, to); });
}

std::error_code renameForGood(const fs::path& from, const fs::path& to) {
    const std::error_code error = andSync(renameFile(from, to), to);
    return error || from.parent_path() == to.parent_path() ? error : andSync(error, from);
}

std::error_code renameToNew(const fs::path& from, const fs::path& to) {
    const std::error_code error =
        unlessObjected(FileCall::Rename, to, [&](std::error_code& notRenamed) {
            if (!renamesToNew(from, to, notRenamed)) {
                notRenamed = fs::exists(fs::symlink_status(to, notRenamed))
                                 ? std::make_error_code(std::errc::file_exists)
                                 : renamed(from, to);
            }
        });
    const std::error_code synced = andSync(error, to);
    return synced || from.parent_path() == to.parent_path() ? synced : andSync(synced, from);
}

std::error_code exchangeForGood([[maybe_unused]] const fs::path& one, const fs::path& other) {
    const std::error_code error =
        unlessObjected(FileCall::Exchange, other, [&](std::error_code& notExchanged) {
            notExchanged = std::make_error_code(std::errc::function_not_supported);
#ifdef RENAME_EXCHANGE
            if (renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0) {
                notExchanged.clear();
            } else if (errno != EINVAL) {  // file systems that cannot do it say so with that
                notExchanged = lastError();
            }
#endif
        });
    const std::error_code synced = andSync(error, other);
    return synced || one.parent_path() == other.parent_path() ? synced : andSync(synced, one);
}

std::error_code removeFile(const fs::path& file) {
    return unlessObjected(FileCall::Remove, file,
                          [&](std::error_code& error) { fs::remove(file, error); });
}

std::error_code removeForGood(const fs::path& file) {
    return andSync(removeFile(file), file);
}

std::error_code removeTree(const fs::path& folder) {
    return unlessObjected(FileCall::RemoveTree, folder,
                          [&](std::error_code& error) { fs::remove_all(folder, error); });
}

std::error_code makeNewFolder(const fs::path& folder) {
    return unlessObjected(FileCall::MakeFolder, folder, [&](std::error_code& error) {
        if (!fs::create_directory(folder, error) && !error) {
            error = std::make_error_code(std::errc::file_exists);
        }
    });
}

std::error_code makeNewPrivateFolder(const fs::path& folder) {
#if __has_include(<unistd.h>)
    return unlessObjected(FileCall::MakeFolder, folder, [&](std::error_code& error) {
        if (mkdir(folder.c_str(), S_IRWXU) != 0) {
            error = lastError();
        }
    });
#else
    return makeNewFolder(folder);
#endif
}

std::error_code makeLink(const fs::path& to, const fs::path& link) {
    return unlessObjected(FileCall::MakeLink, link,
                          [&](std::error_code& error) { fs::create_symlink(to, link, error); });
}

std::error_code makeTwin(const fs::path& file, const fs::path& twin) {
    return unlessObjected(FileCall::MakeLink, twin,
                          [&](std::error_code& error) { fs::create_hard_link(file, twin, error); });
}

std::error_code setFolderMode(const fs::path& folder, fs::perms mode) {
    return unlessObjected(FileCall::SetMode, folder,
                          [&](std::error_code& error) { fs::permissions(folder, mode, error); });
}

std::error_code syncFolder(const fs::path& folder) {
    return unlessObjected(FileCall::SyncFolder, folder, [&](std::error_code& error) {
        error = syncOpenFolder(orCurrent(folder));
    });
}

std::vector<fs::directory_entry> folderEntries(const fs::path& folder, std::error_code& error) {
    std::vector<fs::directory_entry> entries;
    error = unlessObjected(FileCall::ListFolder, folder, [&](std::error_code& unread) {
        for (fs::directory_iterator entry(orCurrent(folder), unread);
             !unread && entry != fs::directory_iterator(); entry.increment(unread)) {
            entries.push_back(*entry);
        }
    });
    return entries;
}

}  // namespace fleetwright
