#include "unpackImages.h"

#include "Error.h"
#include "FileLock.h"
#include "SheetPictures.h"
#include "fileCalls.h"
#include "readFile.h"
#include "saveFile.h"

#include <random>
#include <string>
#include <system_error>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// New pictures on their way into their folder, and then the old ones on theirs out of it.
const std::string newPictures = "images.unpacking-";
/// The old ones while there is no folder, where the system cannot exchange two.
const std::string oldPictures = "images.replaced";

void check(const fs::path& file, const std::error_code& error) {
    if (error) {
        throw FileError(file, "cannot be made: " + error.message());
    }
}

bool isThere(const fs::path& path) {
    return fs::exists(fs::symlink_status(path));
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

void takeOver(const fs::path& from, const fs::path& to);

void takeEntryOver(const fs::directory_entry& entry, const fs::path& target) {
    if (entry.is_symlink()) {
        check(target, makeLink(fs::read_symlink(entry.path()), target));
    } else if (entry.is_directory()) {
        check(target, makeNewFolder(target));
        takeOver(entry.path(), target);
    } else if (makeTwin(entry.path(), target)) {
        saveFile(target, readBytes(entry.path()));  // some disks have one name for each file
    }
}

/// Gives a new folder all that only an old one has, and the old one's mode.
void takeOver(const fs::path& from, const fs::path& to) {
    std::error_code error;
    for (const fs::directory_entry& entry : folderEntries(from, error)) {
        const fs::path target = to / entry.path().filename();
        if (!isThere(target)) {
            takeEntryOver(entry, target);
        }
    }
    check(from, error);
    check(to, setFolderMode(to, fs::status(from).permissions()));
    check(to, syncFolder(to));
}

/// Moves what has come into an old folder since it was taken over.
void takeLateOnesOver(const fs::path& from, const fs::path& to) {
    std::error_code error;
    for (const fs::directory_entry& entry : folderEntries(from, error)) {
        const fs::path target = to / entry.path().filename();
        if (!isThere(target)) {
            check(target, renameForGood(entry.path(), target));
        } else if (entry.is_directory() && !entry.is_symlink()) {
            takeLateOnesOver(entry.path(), target);
        }
    }
    check(from, error);
}

/// A folder of pictures beside that which they are for. It is gone with this object, or what it was
/// exchanged for is.
class NewPictures {
public:
    explicit NewPictures(const fs::path& images) : m_images(images) {
        std::error_code error;
        do {
            m_folder =
                images.parent_path() / (newPictures + std::to_string(std::random_device()()));
            error = makeNewFolder(m_folder);
        } while (error == std::errc::file_exists);
        check(images, error);
    }
    NewPictures(const NewPictures&) = delete;
    NewPictures& operator=(const NewPictures&) = delete;
    ~NewPictures() { [[maybe_unused]] const auto left = removeTree(m_folder); }

    const fs::path& folder() const { return m_folder; }

    /// Puts them in their place, which is empty. Another run may have been quicker.
    void place() {
        const std::error_code error = renameToNew(m_folder, m_images);
        if (error != std::errc::file_exists || !hasPictures(m_images)) {
            check(m_images, error);
        }
    }

    /// Puts them in the place of others.
    void replace() {
        constexpr fs::perms anyWrite =
            fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
        if ((fs::status(m_images).permissions() & anyWrite) == fs::perms::none) {
            check(m_images, std::make_error_code(std::errc::permission_denied));
        }
        takeOver(m_images, m_folder);
        std::error_code error = exchangeForGood(m_folder, m_images);
        if (error == std::errc::function_not_supported) {
            error = replaceInTwoSteps();
        }
        check(m_images, error);
        takeLateOnesOver(m_folder, m_images);
    }

private:
    std::error_code replaceInTwoSteps() {
        const fs::path old = m_images.parent_path() / oldPictures;
        std::error_code error = renameForGood(m_images, old);
        if (!error && (error = renameForGood(m_folder, m_images))) {
            [[maybe_unused]] const auto worse = renameForGood(old, m_images);
        } else if (!error) {
            m_folder = old;
        }
        return error;
    }

    fs::path m_images;
    fs::path m_folder;
};

void makeImages(const fs::path& images, const fs::path& programFolder,
                const RunArchive& runArchive) {
    const fs::path archive = programFolder / "images.exe";
    if (!fs::is_regular_file(archive)) {
        throw FileError(archive, "is missing; it carries the pictures");
    }
    NewPictures pictures(images);
    if (!runArchive(archive, pictures.folder()) || !hasPictures(pictures.folder())) {
        throw FileError(images, "the pictures could not be unpacked");
    }
    if (isThere(images)) {
        pictures.replace();
    } else {
        pictures.place();
    }
}

/// What runs that were cut short have left in the application folder.
std::vector<fs::path> leftOnes(const fs::path& appFolder) {
    std::vector<fs::path> left;
    std::error_code unreadable;
    for (const fs::directory_entry& entry : folderEntries(appFolder, unreadable)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with(newPictures) || name == oldPictures) {
            left.push_back(entry.path());
        }
    }
    return left;
}

void makeGood(const fs::path& appFolder) {
    const fs::path images = appFolder / "images", old = appFolder / oldPictures;
    if (!isThere(images) && isThere(old)) {
        check(images, renameForGood(old, images));
    }
    for (const fs::path& left : leftOnes(appFolder)) {
        // The archive of a run that was killed may still be at work in it; this ends it, too.
        constexpr int mostTries = 10;
        for (int i = 0; i < mostTries && removeTree(left); ++i) {
        }
    }
}

/// Does a work in an application folder when no other run does; where others are not waited for,
/// only if none does.
template <typename Work>
void aloneIn(const fs::path& appFolder, FileLock::IfTaken ifTaken, Work work) {
    try {
        // The folder itself, also where its name is a link.
        const FileLock lock(appFolder / ".", ifTaken);
        if (lock.isWithOthers()) {
            return;
        }
        if (lock.isHeld()) {
            makeGood(appFolder);
        }
        work(appFolder / "images");
    } catch (const fs::filesystem_error& error) {
        throw FileError(error.path1(), error.code().message());
    }
}

}  // namespace

void unpackImages(const fs::path& appFolder, const fs::path& programFolder,
                  const RunArchive& runArchive) {
    std::error_code unknown;
    const bool isUnpacked = fs::is_directory(appFolder / "images", unknown);
    if (isUnpacked && leftOnes(appFolder).empty()) {
        return;
    }
    // Whoever has the pictures need not wait until what is left has gone.
    aloneIn(appFolder, isUnpacked ? FileLock::IfTaken::GiveUp : FileLock::IfTaken::Wait,
            [&](const fs::path& images) {
                if (!fs::is_directory(images)) {
                    makeImages(images, programFolder, runArchive);
                }
            });
}

void renewImages(const fs::path& appFolder, const fs::path& programFolder,
                 const RunArchive& runArchive) {
    aloneIn(appFolder, FileLock::IfTaken::Wait, [&](const fs::path& images) {
        if (fs::is_symlink(images)) {
            throw FileError(images,
                            "is a link, and pictures are unpacked into no folder elsewhere");
        }
        makeImages(images, programFolder, runArchive);
    });
}

}  // namespace fleetwright
