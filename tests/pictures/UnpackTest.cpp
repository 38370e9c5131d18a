#include "unpackFiles.h"

#include "Error.h"
#include "TemporaryFolder.h"
#include "faults.h"
#include "renderedSets.h"
#include "runCommand.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace fleetwright {
namespace {

namespace fs = std::filesystem;

/// Bounds the size of files that this process can write, which fails like a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t size) {
        m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limit = {size, m_old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }

private:
    rlimit m_old{};
    void (*m_oldHandler)(int) = SIG_DFL;
};

TEST(UnpackFiles, ADiskThatFillsUpLeavesNothing) {
    const TemporaryFolder folder;
    const std::string large(20000, 'x');
    const ArchivedFile files[] = {{"a.gif", "small"}, {"b.gif", large}, {"c.gif", "small"}};
    const FileSizeLimit limit(8000);
    EXPECT_TRUE(fileFaultOf([&] {
                    unpackFiles(files, folder.path());
                }).starts_with((folder.path() / "b.gif: cannot be written: ").string()));
    EXPECT_EQ(folder.entries(), 0);
}

TEST(UnpackFiles, ANameThatCannotBeTakenLeavesTheFolderAsItWas) {
    const TemporaryFolder folder;
    fs::create_directories(folder.path() / "b.gif" / "inside");
    const ArchivedFile files[] = {{"a.gif", "a"}, {"b.gif", "b"}};
    EXPECT_THROW(unpackFiles(files, folder.path()), FileError);
    EXPECT_EQ(folder.entries(), 1);
    EXPECT_TRUE(fs::exists(folder.path() / "b.gif" / "inside"));
}

TEST(UnpackFiles, WhatAKilledRunHasLeftIsCleanedUp) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path() / ".unpacking");
    folder.write(".unpacking/half.gif", "hal");
    const ArchivedFile files[] = {{"a.gif", "a"}};
    unpackFiles(files, folder.path());
    EXPECT_EQ(folder.entries(), 1);
    EXPECT_EQ(folder.read("a.gif"), "a");
}

TEST(PictureArchive, UnpacksEveryPictureOfCatalogueAndSheet) {
    const TemporaryFolder folder;
    const CommandResult result = runCommand("cd " + folder.path().string() + " && " ARCHIVE " -o");
    ASSERT_EQ(result.status, 0) << result.output;
    PictureSet expected = renderedCatalogue();
    expected.insert(renderedSheet().begin(), renderedSheet().end());
    for (const auto& [name, bytes] : expected) {
        EXPECT_EQ(folder.read(name), bytes) << name;
    }
    EXPECT_EQ(folder.entries(), static_cast<int>(expected.size()));
}

TEST(PictureArchive, WithoutItsOptionItSaysWhatItIsAndWritesNothing) {
    const TemporaryFolder folder;
    const CommandResult result = runCommand("cd " + folder.path().string() + " && " ARCHIVE);
    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.output.find("-o"), std::string::npos);
    EXPECT_EQ(folder.entries(), 0);
}

TEST(PictureArchive, AFolderThatCannotBeWrittenToIsNamed) {
    // Not even the superuser makes files here.
    const CommandResult result = runCommand("cd /proc && " ARCHIVE " -o");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output.find("/proc: cannot be written: "), 0U) << result.output;
}

/// An application folder with nothing but what the command needs.
class UnpackCommand : public testing::Test {
protected:
    UnpackCommand() { fs::copy_file(ARCHIVE, m_app.path() / "images.exe"); }

    CommandResult unpack() const {
        return runCommand(CLI " unpack --app " + m_app.path().string());
    }

    TemporaryFolder m_app;
};

TEST_F(UnpackCommand, MakesTheFolderAndCanBeRepeated) {
    const CommandResult first = unpack();
    ASSERT_EQ(first.status, 0) << first.output;
    const fs::path picture = m_app.path() / "images" / "blank.gif";
    ASSERT_TRUE(fs::exists(picture));
    EXPECT_EQ(m_app.entries(), 2);

    fs::remove(picture);
    m_app.write("images/ftl.gif", "spoilt");
    m_app.write("images/mine.gif", "mine");
    EXPECT_EQ(unpack().status, 0);
    EXPECT_EQ(m_app.read("images/blank.gif"), renderedSheet().at("blank.gif"));
    EXPECT_EQ(m_app.read("images/ftl.gif"), renderedSheet().at("ftl.gif"));
    EXPECT_EQ(m_app.read("images/mine.gif"), "mine");
}

TEST_F(UnpackCommand, ADiskThatFillsUpLeavesThePicturesAsTheyWere) {
    m_app.write("images/ftl.gif", "old");
    const CommandResult result =
        runCommand("ulimit -f 20; " CLI " unpack --app " + m_app.path().string());
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("images/images.exe: cannot be saved: File too large"),
              std::string::npos)
        << result.output;
    EXPECT_EQ(std::distance(fs::directory_iterator(m_app.path() / "images"), {}), 1);
    EXPECT_EQ(m_app.read("images/ftl.gif"), "old");
}

TEST_F(UnpackCommand, AnArchiveThatFailsOrSeemsToSucceedLeavesNoFolder) {
    for (const char* bytes :
         {"", "#!/bin/sh\ntouch half.gif\nexit 1\n", "#!/bin/sh\ntouch blank.gif\n"}) {
        m_app.write("images.exe", bytes);
        const CommandResult result = unpack();
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.output.find("images: the pictures could not be unpacked"),
                  std::string::npos)
            << result.output;
        EXPECT_EQ(m_app.entries(), 1);
    }
}

TEST_F(UnpackCommand, AFileInThePlaceOfTheFolderIsNamedAndStays) {
    m_app.write("images", "not a folder");
    const CommandResult result = unpack();
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("images: cannot be made: "), std::string::npos) << result.output;
    EXPECT_EQ(m_app.read("images"), "not a folder");
    EXPECT_EQ(m_app.entries(), 2);
}

TEST_F(UnpackCommand, WorksInAFolderWhosePathAShellWouldMisread) {
    const fs::path app = m_app.path() / "it's $HOME \xC3\xBC & more";
    fs::create_directory(app);
    fs::copy_file(ARCHIVE, app / "images.exe");
    const CommandResult result =
        runCommand("cd '" + m_app.path().string() + "' && " CLI " unpack --app ./it\\'s*more");
    EXPECT_EQ(result.status, 0) << result.output;
    EXPECT_TRUE(fs::exists(app / "images" / "blank.gif"));
}

TEST_F(UnpackCommand, AMissingArchiveIsNamed) {
    fs::remove(m_app.path() / "images.exe");
    const CommandResult result = unpack();
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("images.exe: is missing"), std::string::npos);
    EXPECT_EQ(m_app.entries(), 0);
}

}  // namespace
}  // namespace fleetwright
