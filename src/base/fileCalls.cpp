#include "fileCalls.h"

#include "entryCalls.h"

#include <cerrno>
#include <utility>

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

/// An error in the words that it has on every system.
std::error_code inCommonWords(const std::error_code& error) {
    const std::error_condition meaning = error.default_error_condition();
    return meaning.category() == std::generic_category()
               ? std::error_code(meaning.value(), meaning.category())
               : error;
}

template <typename Call>
std::error_code unlessObjected(FileCall call, const fs::path& path, Call make) {
    std::error_code error = objection(call, path);
    if (!error) {
        make(error);
    }
    return inCommonWords(error);
}

fs::path orCurrent(const fs::path& folder) {
    return folder.empty() ? fs::path(".") : folder;
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
                          [&](std::error_code& error) { error = entryCalls::rename(from, to); });
}

std::error_code renameForGood(const fs::path& from, const fs::path& to) {
    const std::error_code error = andSync(renameFile(from, to), to);
    return error || from.parent_path() == to.parent_path() ? error : andSync(error, from);
}

std::error_code renameToNew(const fs::path& from, const fs::path& to) {
    const std::error_code error =
        unlessObjected(FileCall::Rename, to, [&](std::error_code& notRenamed) {
            if (!entryCalls::renamesToNew(from, to, notRenamed)) {
                notRenamed = fs::exists(fs::symlink_status(to, notRenamed))
                                 ? std::make_error_code(std::errc::file_exists)
                                 : entryCalls::rename(from, to);
            }
        });
    const std::error_code synced = andSync(error, to);
    return synced || from.parent_path() == to.parent_path() ? synced : andSync(synced, from);
}

std::error_code exchangeForGood(const fs::path& one, const fs::path& other) {
    const std::error_code error =
        unlessObjected(FileCall::Exchange, other, [&](std::error_code& notExchanged) {
            notExchanged = entryCalls::exchange(one, other);
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
    return unlessObjected(FileCall::MakeFolder, folder, [&](std::error_code& error) {
        error = entryCalls::makePrivateFolder(folder);
    });
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
        error = entryCalls::syncFolder(orCurrent(folder));
    });
}

std::vector<fs::directory_entry> folderEntries(const fs::path& folder, std::error_code& error) {
    std::vector<fs::directory_entry> entries;
    error = unlessObjected(FileCall::ListFolder, folder, [&](std::error_code& unread) {
        entries = entryCalls::entriesIn(orCurrent(folder), unread);
    });
    return entries;
}

}  // namespace fleetwright
