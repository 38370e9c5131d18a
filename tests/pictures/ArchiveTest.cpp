// The archive of the pictures, the commands that unpack it and look at what it unpacks, and what is
// said of the pictures of a catalogue.

#include "CatalogueFile.h"
#include "PictureCheck.h"
#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "caseFile.h"
#include "faults.h"
#include "readFile.h"
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

TEST(PictureCheck, NamesTheLinesWhosePicturesAreMissingOrFaulty) {
    const TemporaryFolder folder;
    const std::string whole = readBytes(PICTURES_FOLDER "/images/maw-f.gif");
    folder.write("maw-f.gif", whole.substr(0, whole.size() / 2));
    folder.write("armor-plate.gif", readBytes(PICTURES_FOLDER "/images/cap3.gif"));
    folder.write("guns/Maw-F.gif", whole);
    const std::string catalogue = "# systems\r\n"
                                  "CATEGORY,0,0,BEAM,GUNS,O,cat-pulse-cannons.gif\r\n"
                                  "Gun,1,1,BEAM,GUNS,F,Maw-F.gif\r\n"
                                  "Shield,1,1,BEAM,GUNS,F,armor-plate.gif\r\n"
                                  "Inside,1,1,BEAM,GUNS,F,guns/maw-f.gif\r\n"
                                  "Bare,1,1,BEAM,GUNS,F,\r\n";
    const std::string missing = "2: picture \"cat-pulse-cannons.gif\" is missing\n";
    const std::string large = "4: picture \"armor-plate.gif\" is 144 by 54 pixels, not 32 by 32\n";
    QtPictureFiles pictures;
    const auto faults = [&](PictureCheck::Depth depth) {
        return textOf(PictureCheck(folder.path(), pictures, depth).checkCatalogue(catalogue));
    };
    EXPECT_EQ(faults(PictureCheck::All),
              missing + "3: picture \"Maw-F.gif\" cannot be read\n" + large);
    // Decoders show what there is of a picture that was cut short, so the program can start.
    EXPECT_EQ(faults(PictureCheck::Start), missing + large + "6: no picture\n");
}
