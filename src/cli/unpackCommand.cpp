#include "commands.h"

#include "Error.h"
#include "SheetPictures.h"

#include <cstdlib>
#include <system_error>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// Lets the archive unpack itself into a folder beside it; its exit status.
int runArchive(const fs::path& folder) {
    // From within the folder the command needs no path that a shell could misread.
    fs::current_path(folder);
    const fs::path archive = fs::path("..") / "images.exe";
    const int status = std::system((archive.string() + " -o").c_str());
    fs::current_path(folder.parent_path());
    return status;
}

/// Whether the pictures of sheets are in a folder, which are the same for every catalogue. A shell
/// takes an archive that is empty or garbled for a script, and that may well end in success.
bool hasPictures(const fs::path& folder) {
    for (const std::string& name : sheetPictures()) {
        if (!fs::exists(folder / name)) {
            return false;
        }
    }
    return true;
}

/// Makes the folder of pictures. A program that starts takes a folder of that name for complete,
/// so it gets its name last.
void unpackAnew(const fs::path& images) {
    const fs::path folder = images.parent_path() / "images.unpacking";
    std::error_code error;
    fs::remove_all(folder, error);
    fs::create_directory(folder, error);
    if (error) {
        throw FileError(images, "cannot be made: " + error.message());
    }
    const bool isUnpacked = runArchive(folder) == 0 && hasPictures(folder);
    if (isUnpacked) {
        fs::rename(folder, images, error);
    }
    if (!isUnpacked || error) {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
        throw FileError(images, isUnpacked ? "cannot be made: " + error.message()
                                           : "the pictures could not be unpacked");
    }
}

}  // namespace

int runUnpack(const Options& options) {
    const fs::path appFolder = fs::absolute(options.appFolder);
    const fs::path archive = appFolder / "images.exe";
    if (!fs::is_regular_file(archive)) {
        throw FileError(archive, "is missing; it carries the pictures");
    }
    const fs::path images = appFolder / "images";
    if (!fs::is_directory(images)) {
        unpackAnew(images);
    } else if (runArchive(images) != 0 || !hasPictures(images)) {
        throw FileError(images, "the pictures could not be unpacked");
    }
    return Done;
}

}  // namespace fleetwright
