// The archive of the pictures, and the commands that unpack it and look at what it unpacks.

#include "TemporaryFolder.h"
#include "faults.h"
#include "files.h"
#include "runCommand.h"
#include "unpackFiles.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

const fs::path pictures = PICTURES_FOLDER "/images";

CommandResult unpackIn(const TemporaryFolder& folder, const std::string& before = "") {
    return runCommand("cd " + folder.path().string() + " && " + before + ARCHIVE " -o");
}

/// An application folder with nothing but what the command needs.
class UnpackCommand : public testing::Test {
protected:
    UnpackCommand() { fs::copy_file(ARCHIVE, app.path() / "images.exe"); }

    CommandResult tool(const std::string& command, const std::string& before = "") const {
        return runCommand(before + CLI " " + command + " --app " + app.path().string());
    }
    std::string inApp(const std::string& complaint) const {
        return (app.path() / complaint).string();
    }

    TemporaryFolder app;
};

}  // namespace

TEST(UnpackFiles, AFailureLeavesTheFolderAsItWas) {
    const TemporaryFolder folder;
    folder.write(".unpacking/half.gif", "what a killed run has left");
    // A limit on the size of files ends a write as a full disk does.
    const CommandResult full = unpackIn(folder, "ulimit -f 0; ");
    EXPECT_EQ(full.status, 1);
    EXPECT_TRUE(full.output.starts_with(folder.path().string()) &&
                full.output.ends_with(": cannot be written: File too large\n"))
        << full.output;
    EXPECT_EQ(folder.entries(), 0);

    folder.write("b.gif/inside", "");
    const ArchivedFile files[] = {{"a.gif", "a"}, {"b.gif", "b"}};
    EXPECT_THROW(unpackFiles(files, folder.path()), FileError);
    EXPECT_EQ(folder.entries(), 1);
    EXPECT_TRUE(fs::exists(folder.path() / "b.gif" / "inside"));
}

TEST(PictureArchive, UnpacksAllThatWasDrawnAndOnlyWhenAsked) {
    const TemporaryFolder folder;
    const CommandResult unasked = runCommand("cd " + folder.path().string() + " && " ARCHIVE);
    EXPECT_EQ(unasked.status, 2);
    EXPECT_NE(unasked.output.find("-o"), std::string::npos);
    EXPECT_EQ(folder.entries(), 0);

    EXPECT_EQ(unpackIn(folder).status, 0);
    EXPECT_EQ(runCommand("diff -r " + pictures.string() + ' ' + folder.path().string()).output, "");

    // Not even the superuser makes files here.
    const CommandResult refused = runCommand("cd /proc && " ARCHIVE " -o");
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.output.starts_with("/proc: cannot be written: ")) << refused.output;
}

TEST_F(UnpackCommand, MakesAndRenewsTheFolderThatCheckLooksAt) {
    fs::copy_file(CATALOGUE_FILE, app.path() / "weaps.dat");
    EXPECT_EQ(tool("check").output,
              inApp("images: not unpacked yet, so no picture was looked at\n"));
    EXPECT_EQ(tool("unpack").status, 0);
    EXPECT_EQ(tool("check").output, "");
    EXPECT_EQ(app.entries(), 3);

    fs::remove(app.path() / "images" / "cat-pulse-cannons.gif");
    fs::remove(app.path() / "images" / "escort4.gif");
    app.write("images/ftl.gif", "spoilt");
    app.write("images/mine.JPG", "mine");
    app.write("images/notes.txt", "no picture and none of our business");
    const CommandResult check = tool("check");
    EXPECT_EQ(check.status, 1);
    for (const char* const fault :
         {"images/ftl.gif: cannot be read\n", "images/mine.JPG: nothing uses this picture\n",
          "images/escort4.gif: is missing; sheets need it\n",
          ": picture \"cat-pulse-cannons.gif\" is missing\n"}) {
        EXPECT_NE(check.output.find(fault), std::string::npos) << check.output;
    }
    EXPECT_EQ(std::ranges::count(check.output, '\n'), 4) << check.output;

    EXPECT_EQ(tool("unpack").status, 0);
    EXPECT_EQ(app.read("images/ftl.gif"), readBytes(pictures / "ftl.gif"));
    EXPECT_EQ(tool("check").output, inApp("images/mine.JPG: nothing uses this picture\n"));
}

TEST_F(UnpackCommand, AFailureIsNamedAndLeavesEverythingAsItWas) {
    app.write("images/ftl.gif", "old");
    EXPECT_EQ(tool("unpack", "ulimit -f 20; ").output,
              inApp("images/images.exe: cannot be saved: File too large\n"));
    EXPECT_EQ(runCommand("ls " + inApp("images")).output, "ftl.gif\n");
    EXPECT_EQ(app.read("images/ftl.gif"), "old");
    fs::remove_all(app.path() / "images");

    app.write("images", "not a folder");
    EXPECT_TRUE(tool("unpack").output.starts_with(inApp("images: cannot be made: ")));
    EXPECT_EQ(app.read("images"), "not a folder");
    EXPECT_EQ(app.entries(), 2);
    fs::remove(app.path() / "images");

    // That fail, or seem to succeed.
    for (const char* const archive :
         {"", "#!/bin/sh\ntouch half.gif\nexit 1\n", "#!/bin/sh\ntouch blank.gif\n"}) {
        app.write("images.exe", archive);
        EXPECT_EQ(tool("unpack").output, inApp("images: the pictures could not be unpacked\n"));
        EXPECT_EQ(app.entries(), 1);
    }
    fs::remove(app.path() / "images.exe");
    const CommandResult missing = tool("unpack");
    EXPECT_EQ(missing.output, inApp("images.exe: is missing; it carries the pictures\n"));
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(app.entries(), 0);
}

TEST_F(UnpackCommand, WorksInAFolderWhosePathAShellWouldMisread) {
    const fs::path odd = app.path() / "it's $HOME \xC3\xBC & more";
    fs::create_directory(odd);
    fs::rename(app.path() / "images.exe", odd / "images.exe");
    EXPECT_EQ(
        runCommand("cd " + app.path().string() + " && " CLI " unpack --app ./it\\'s*more").status,
        0);
    EXPECT_TRUE(fs::exists(odd / "images" / "blank.gif"));
}
