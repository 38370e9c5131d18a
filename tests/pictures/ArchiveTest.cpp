// The archive of the pictures, and the commands that unpack it and look at what it unpacks.

#include "TemporaryFolder.h"
#include "caseFile.h"
#include "runCommand.h"

#include <gtest/gtest.h>

#include <utility>

using namespace fleetwright;

namespace {

/// What shell commands, a line each, say and leave in an application folder.
std::string unpacked(const Case& given) {
    const TemporaryFolder app;
    std::string log;
    const auto act = [&](const std::string& command) {
        const CommandResult result = runCommand(
            "cd " + app.path().string() +
            "; PICTURES=" PICTURES_FOLDER "/images; CATALOGUE=" CATALOGUE_FILE "; ARCHIVE=" ARCHIVE
            "; CLI=" CLI "; tool() { \"$CLI\" \"$@\" --app \"$PWD\"; }; { " +
            command + "; }");
        log = result.output + (result.status == 0 ? "" : "status " + std::to_string(result.status));
    };
    return playActs(given["acts"], {.act = act,
                                    .takeLog = [&] { return std::exchange(log, {}); },
                                    .look = [] { return std::map<std::string, std::string>(); },
                                    .folder = app.path().string()});
}

}  // namespace

TEST(PictureArchive, IsUnpackedWholeOrNotAtAll) {
    expectCases("pictures/golden/unpacking.txt", unpacked);
}
