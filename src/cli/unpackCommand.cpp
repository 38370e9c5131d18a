#include "commands.h"
#include "runToEnd.h"
#include "unpackImages.h"

namespace fleetwright {

namespace {

int runUnpack(const Options& options) {
    renewImages(std::filesystem::absolute(options.appFolder), options.programFolder,
                [](const std::filesystem::path& archive, const std::filesystem::path& folder) {
                    return runToEnd(archive, "-o", folder);
                });
    return Done;
}

}  // namespace

extern const CommandRow unpackCommand = {
    .name = "unpack",
    .help = "Unpack the pictures into the application folder",
    .details = "They replace those that are there; files of your own beside them stay.",
    .run = runUnpack,
};

}  // namespace fleetwright
