#include "saveFile.h"

#include "Error.h"
#include "entryCalls.h"
#include "fileCalls.h"
#include "fileTraits.h"
#include "overwriteFile.h"
#include "paths.h"
#include "text.h"

#include <algorithm>
#include <csignal>
#include <initializer_list>
#include <mutex>
#include <set>
#include <string>
#include <system_error>
#include <utility>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const fs::path& target, const std::string& why) {
    throw FileError(target, "cannot be saved: " + why);
}

void failOn(const std::error_code& error, const fs::path& target) {
    if (error) {
        fail(target, error.message());
    }
}

/// Why an existing file may not be written to, if that is so.
std::error_code writeProtection(const fs::path& file, const fs::file_status& status) {
    constexpr fs::perms anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if ((status.permissions() & anyWrite) == fs::perms::none) {
        // Protected, even from those who may do anything.
        return std::make_error_code(std::errc::permission_denied);
    }
    return entryCalls::mayWrite(file);
}

bool isPutAsideFolder(const fs::path& folder) {
    try {
        std::error_code notThere;
        return fs::equivalent(folder, putAsideFolder(), notThere);
    } catch (const FileError&) {
        return false;  // for a user without a home there is no such folder
    }
}

/// Takes away what killed saves have left in a folder, when this run saves there for the first
/// time. What they have left among designs put aside may be one, and is not for a save to judge.
void tidyOnce(const fs::path& folder) {
    static std::mutex mutex;
    static std::set<fs::path> tidied;
    const std::lock_guard lock(mutex);
    if (tidied.insert(folder).second && !isPutAsideFolder(folder)) {
        TemporaryFile::takeLeftOnesAway(folder);
    }
}

bool isOneOf(const std::error_code& error, std::initializer_list<std::errc> reasons) {
    return std::find(reasons.begin(), reasons.end(), error) != reasons.end();
}

/// Whether a folder does not let a file in it be replaced, which may be written to all the same.
bool isForbidden(const std::error_code& error) {
    return isOneOf(error, {std::errc::permission_denied, std::errc::operation_not_permitted,
                           std::errc::read_only_file_system, std::errc::device_or_resource_busy});
}

/// Whether a new file cannot have what an old one has, by right or for lack of a place for it.
bool isUnattainable(const std::error_code& error) {
    return isForbidden(error) ||
           isOneOf(error, {std::errc::not_supported, std::errc::no_space_on_device});
}

/// Puts a new file in the place of one, or where there is none yet. `isHindered` says that it has
/// failed by what a new file cannot be or may not do, and not by its contents.
template <typename Contents>
std::error_code replaceFile(const fs::path& file, bool isThere, const Contents& contents,
                            bool& isHindered) {
    std::error_code error;
    TemporaryFile temporary(file, error);
    isHindered = isForbidden(error);
    if (!error && isThere) {
        // Before there is anything in it that others should not read.
        error = copyTraits(file, temporary.file());
        isHindered = isUnattainable(error);
    }
    if (error) {
        return error;
    }
    error = temporary.write(contents);
    if (!error) {
        error = temporary.rename(file);
        isHindered = !temporary.isRenamed() && isForbidden(error);
    }
    return error;
}

std::string_view allOf(std::string_view contents) {
    return contents;
}

std::string allOf(const FileContents& contents) {
    std::string all;
    contents([&all](std::string_view piece) { all += piece; });
    return all;
}

/// Where a chain of links ends.
struct ChainEnd {
    fs::path file;
    fs::file_status status;  ///< that of a link, if the chain has no end
    std::error_code error;   ///< why the status is not known
};

/// Follows links, also to a file that does not exist yet.
ChainEnd endOfLinks(fs::path path) {
    constexpr int mostLinks = 40;
    std::error_code error;
    fs::file_status status = fs::symlink_status(path, error);
    for (int i = 0; i < mostLinks && fs::is_symlink(status); ++i) {
        std::error_code unread;
        const fs::path next = fs::read_symlink(path, unread);
        if (unread) {
            break;
        }
        path = next.is_absolute() ? next : path.parent_path() / next;
        status = fs::symlink_status(path, error);
    }
    return {std::move(path), status, error};
}

std::uintmax_t otherNames(const fs::path& target) {
    const ChainEnd end = endOfLinks(target);
    const bool isFile = fs::is_regular_file(end.status);
    const std::uintmax_t names = isFile ? entryCalls::nameCount(end.file) : 0;
    return names == 0 ? 0 : names - 1;
}

template <typename Contents>
void save(const fs::path& target, const Contents& contents) {
    if (const std::string_view why = entryCalls::whyNoName(target); !why.empty()) {
        fail(target, std::string(why));
    }
    const auto [file, status, unknown] = endOfLinks(target);
    if (fs::is_symlink(status)) {
        failOn(std::make_error_code(std::errc::too_many_symbolic_link_levels), target);
    }
    if (status.type() == fs::file_type::none) {
        failOn(unknown, target);  // taken for missing, it would lose what belongs to it
    }
    const bool isThere = fs::exists(status);
    failOn(whyNoFile(status), target);
    if (isThere) {
        // The rename would replace a write-protected file without a question.
        failOn(writeProtection(file, status), target);
    }

    tidyOnce(file.parent_path());
    bool isHindered = false;
    const std::error_code error = replaceFile(file, isThere, contents, isHindered);
    if (!isThere || !isHindered) {
        failOn(error, target);
        return;
    }
    if (otherNames(file) > 0) {
        fail(target,
             error.message() + "; if it were overwritten, its other names would change, too");
    }
    try {
        overwriteFile(file, allOf(contents));
    } catch (const FileError& failure) {
        // A new file would have been the better way, so why there is none is said first.
        fail(target, failure.file() == file ? failure.what()
                                            : error.message() + "; nor can it be overwritten (" +
                                                  complaint(failure) + ')');
    }
}

}  // namespace

void saveFile(const fs::path& target, std::string_view contents) {
    save(target, contents);
}

void saveFile(const fs::path& target, const FileContents& contents) {
    save(target, contents);
}

std::string otherNamesNotice(const fs::path& target) {
    const std::uintmax_t names = otherNames(target);
    if (names == 0) {
        return {};
    }
    return shownText(pathText(target)) + ": has " +
           (names == 1 ? "another name (a hard link), which keeps"
                       : std::to_string(names) + " other names (hard links), which keep") +
           " the old contents";
}

void letFileSizeLimitFail() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace fleetwright
