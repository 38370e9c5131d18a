#include "unpackImages.h"

#include "Error.h"
#include "FileLock.h"
#include "SheetPictures.h"
#include "readFile.h"
#include "saveFile.h"

#include <optional>
#include <random>
#include <string>
#include <system_error>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

fs::path archiveOf(const fs::path& appFolder) {
    fs::path archive = appFolder / "images.exe";
    if (!fs::is_regular_file(archive)) {
        throw FileError(archive, "is missing; it carries the pictures");
    }
    return archive;
}

/// Whether the pictures of sheets are in a folder, which are the same for every catalogue. An
/// archive that is garbled may well be run as something else and end in success.
bool hasPictures(const fs::path& folder) {
    for (const std::string& name : sheetPictures()) {
        if (!fs::exists(folder / name)) {
            return false;
        }
    }
    return true;
}

/// Runs a copy of the archive inside a folder, and takes the copy away.
bool unpackInto(const fs::path& folder, const fs::path& archive, const RunArchive& runArchive) {
    std::error_code ignored;
    const fs::path copy = folder / archive.filename();
    fs::remove(copy);  // a run that was killed has left it
    saveFile(copy, readBytes(archive));
    fs::permissions(copy, fs::status(archive).permissions());
    const bool isDone = runArchive(copy, folder);
    fs::remove(copy, ignored);
    return isDone && hasPictures(folder);
}

const std::string beginning = "images.unpacking-";

/// Takes away what starts that were cut short have left, but not what one that runs is at.
void takeLeftOnesAway(const fs::path& appFolder) {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(appFolder, error)) {
        if (entry.path().filename().string().starts_with(beginning) &&
            FileLock(entry.path()).isHeld()) {
            fs::remove_all(entry.path(), error);
        }
    }
}

constexpr const char* couldNot = "the pictures could not be unpacked";

}  // namespace

void unpackImages(const fs::path& appFolder, const RunArchive& runArchive) {
    const fs::path archive = archiveOf(appFolder);
    const fs::path images = appFolder / "images";
    takeLeftOnesAway(appFolder);
    const fs::path folder = appFolder / (beginning + std::to_string(std::random_device()()));
    std::error_code error;
    try {
        std::optional<FileLock> lock;
        do {
            fs::create_directory(folder);
            lock.emplace(folder);
        } while (lock->isLost());
        if (!unpackInto(folder, archive, runArchive)) {
            throw FileError(images, couldNot);
        }
        fs::rename(folder, images, error);
        // Another start may have been quicker.
        if (error && !hasPictures(images)) {
            throw fs::filesystem_error("rename", error);
        }
        fs::remove_all(folder, error);
    } catch (const fs::filesystem_error& failure) {
        fs::remove_all(folder, error);
        throw FileError(images, "cannot be made: " + failure.code().message());
    } catch (const FileError&) {
        fs::remove_all(folder, error);
        throw;
    }
}

void renewImages(const fs::path& appFolder, const RunArchive& runArchive) {
    const fs::path archive = archiveOf(appFolder);
    const fs::path images = appFolder / "images";
    try {
        if (!unpackInto(images, archive, runArchive)) {
            throw FileError(images, couldNot);
        }
    } catch (const fs::filesystem_error& error) {
        throw FileError(images, error.code().message());
    }
}

}  // namespace fleetwright
