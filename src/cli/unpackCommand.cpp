#include "commands.h"

#include "Error.h"

#include <cstdio>
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

}  // namespace

int runUnpack(const Options& options) {
    const fs::path appFolder = fs::absolute(options.appFolder);
    const fs::path archive = appFolder / "images.exe";
    if (!fs::exists(archive)) {
        throw FileError(archive, "is missing; it carries the pictures");
    }
    // A program that starts takes a folder of that name for complete, so it gets its name last.
    const fs::path images = appFolder / "images";
    const bool isThere = fs::is_directory(images);
    const fs::path folder = isThere ? images : appFolder / "images.unpacking";
    std::error_code error;
    if (!isThere) {
        fs::remove_all(folder, error);
        fs::create_directory(folder, error);
        if (error) {
            throw FileError(images, "cannot be made: " + error.message());
        }
    }
    const bool isUnpacked = runArchive(folder) == 0;
    if (isUnpacked && !isThere) {
        fs::rename(folder, images, error);
    }
    if (!isUnpacked || error) {
        if (!isThere) {
            fs::remove_all(folder);
        }
        throw FileError(images, "the pictures could not be unpacked");
    }
    return Done;
}

}  // namespace fleetwright
