#include "overwriteFile.h"

#include "Error.h"
#include "FileLock.h"
#include "OpenFile.h"
#include "TemporaryFile.h"
#include "fileCalls.h"
#include "paths.h"
#include "readFile.h"
#include "text.h"

#include <string>
#include <string_view>
#include <system_error>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view behindName = " as it was";

/// A name that is free in a folder, for a copy of this file.
fs::path nameForCopy(const fs::path& folder, const fs::path& file) {
    constexpr std::size_t mostBytes = 200;  // file systems take 255, and more follows
    std::string stem = pathText(file.stem());
    while (stem.size() > mostBytes) {
        stem = withoutLastCharacters(stem, 1);
    }
    const fs::path plain = folder / nativePath(stem.append(behindName));
    fs::path name = plain;
    name += file.extension();
    std::error_code unknown;
    for (int i = 2; fs::exists(fs::symlink_status(name, unknown)); ++i) {
        name = plain;
        name += " (" + std::to_string(i) + ')';
        name += file.extension();
    }
    return name;
}

/// Puts old contents of a file aside, and says where. Throws FileError.
fs::path putCopyAside(const fs::path& file, std::string_view contents) {
    const fs::path folder = putAsideFolder();
    makeUserFolder(folder);
    fs::path place = nameForCopy(folder, file);
    std::error_code error;
    TemporaryFile copy(place, error);
    // Nobody but the user, whoever may look at the file itself.
    error = error ? error : copy.file().setMode(fs::perms::owner_read | fs::perms::owner_write);
    error = error ? error : copy.write(contents);
    error = error ? error : copy.renameToNew(place);
    if (error) {
        if (copy.isRenamed()) {
            [[maybe_unused]] const std::error_code left = removeFile(place);
        }
        throw FileError(folder, "cannot be written: " + error.message());
    }
    return place;
}

/// Writes everything from the start of a file on, and closes it.
std::error_code fill(OpenFile& file, std::string_view contents) {
    std::error_code error = file.write(contents);
    error = error ? error : file.resize(contents.size());
    error = error ? error : file.sync();
    const std::error_code notClosed = file.close();
    return error ? error : notClosed;
}

/// Whether the old contents are in the file again.
bool isBroughtBack(const fs::path& path, std::string_view contents) {
    std::error_code error;
    OpenFile file(path, OpenFile::Use::Write, error);
    return !error && !fill(file, contents);
}

}  // namespace

bool isCopyAsItWas(const fs::path& file) {
    const std::string name = pathText(file.stem());
    const std::size_t at = name.rfind(behindName);
    return at != std::string::npos &&
           name.find_first_not_of(" (0123456789)", at + behindName.size()) == std::string::npos;
}

void overwriteFile(const fs::path& path, std::string_view contents) {
    const FileLock lock(path);
    if (lock.isWithOthers()) {
        throw FileError(path, "another program is writing it");
    }
    const std::string old = readBytes(path);
    const fs::path copy = putCopyAside(path, old);
    std::error_code error;
    OpenFile file(path, OpenFile::Use::Write, error);
    if (!error) {
        error = fill(file, contents);
        if (error && !isBroughtBack(path, old)) {
            throw FileError(path, error.message() + "; what it held before is in " +
                                      shownText(pathText(copy)));
        }
    }
    [[maybe_unused]] const std::error_code left = removeForGood(copy);
    if (error) {
        throw FileError(path, error.message());
    }
}

}  // namespace fleetwright
