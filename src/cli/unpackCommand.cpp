#include "commands.h"
#include "unpackImages.h"

#include <cstdlib>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

bool runHere(const fs::path& archive, const fs::path& folder) {
    // From within the folder the command needs no path that a shell could misread.
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    const fs::path here = fs::path(".") / archive.filename();
    const int status = std::system((here.string() + " -o").c_str());
    fs::current_path(before);
    return status == 0;
}

int runUnpack(const Options& options) {
    const fs::path appFolder = fs::absolute(options.appFolder);
    if (fs::is_directory(appFolder / "images")) {
        renewImages(appFolder, runHere);
    } else {
        unpackImages(appFolder, runHere);
    }
    return Done;
}

}  // namespace

extern const CommandRow unpackCommand = {
    .name = "unpack",
    .help = "Unpack the pictures into the application folder",
    .details = "They replace those that are there.",
    .run = runUnpack,
};

}  // namespace fleetwright
