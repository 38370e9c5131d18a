#include "saveFile.h"

#include "Error.h"
#include "TemporaryFolder.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <thread>
#include <vector>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// Runs `act` as a user without rights of his own, since nothing is forbidden to root.
int asNobody(const std::function<bool()>& act) {
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        const bool hasChanged = getuid() != 0 || setuid(nobody) == 0;
        _exit(hasChanged && act() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WEXITSTATUS(status);
}

std::string faultOf(const fs::path& target, std::string_view contents) {
    try {
        saveFile(target, contents);
    } catch (const FileError& error) {
        return error.what();
    }
    return {};
}

}  // namespace

TEST(SaveFile, WritesNewFilesAndReplacesOldOnes) {
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "ship.shp";
    saveFile(file, "first");
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    const bool mayGiveAway = chown(file.c_str(), 65534, 65534) == 0;  // root may
    saveFile(file, std::string("sec\0nd", 6));
    EXPECT_EQ(folder.read("ship.shp"), std::string("sec\0nd", 6));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    struct stat owner {};
    stat(file.c_str(), &owner);
    EXPECT_EQ(owner.st_uid, mayGiveAway ? 65534U : getuid());
    EXPECT_EQ(folder.entries(), 1);

    const fs::path longName = folder.path() / std::string(255, 'n');
    saveFile(longName, "x");
    EXPECT_TRUE(fs::exists(longName));
}

TEST(SaveFile, FollowsLinksAndKeepsThem) {
    const TemporaryFolder folder;
    folder.write("ships/real.shp", "old");
    fs::create_symlink("ships/real.shp", folder.path() / "link.shp");
    fs::create_symlink("ships/new.shp", folder.path() / "dangling.shp");
    saveFile(folder.path() / "link.shp", "new");
    saveFile(folder.path() / "dangling.shp", "made");
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link.shp"));
    EXPECT_EQ(folder.read("ships/real.shp"), "new");
    EXPECT_EQ(folder.read("ships/new.shp"), "made");
}

TEST(SaveFile, RefusesWhatCannotBeSavedAndLeavesItAsItWas) {
    const TemporaryFolder folder;
    const fs::path closed = folder.path() / "closed";
    ASSERT_EQ(mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    fs::create_symlink("/dev/full", folder.path() / "device");
    fs::create_symlink("b", folder.path() / "a");
    fs::create_symlink("a", folder.path() / "b");
    for (const char* const name : {"protected", "closed/ship.shp", "another.shp"}) {
        folder.write(name, "old");
    }
    fs::permissions(folder.path() / "protected", fs::perms::owner_read);
    fs::permissions(folder.path(), fs::perms::all);
    fs::permissions(closed, fs::perms(0555));
    const std::pair<const char*, const char*> refused[] = {
        {"missing/ship.shp", "cannot be saved: No such file or directory"},
        {"closed", "cannot be saved: Is a directory"},
        {"pipe", "cannot be saved: Not a plain file"},
        {"device", "cannot be saved: Not a plain file"},
        {"a", "cannot be saved: Too many levels of symbolic links"},
        {"protected", "cannot be saved: Permission denied"}};
    for (const auto& [name, fault] : refused) {
        EXPECT_EQ(faultOf(folder.path() / name, "new"), fault);
    }
    // Another's file in a folder of one's own is still another's file.
    for (const std::string name : {"closed/ship.shp", "closed/other.shp", "another.shp"}) {
        const auto isRefused = [&] {
            return faultOf(folder.path() / name, "new") == "cannot be saved: Permission denied";
        };
        EXPECT_TRUE((getuid() != 0 && name == "another.shp") || asNobody(isRefused) == 0) << name;
    }
    EXPECT_TRUE(fs::is_symlink(folder.path() / "a"));
    for (const char* const name : {"protected", "closed/ship.shp", "another.shp"}) {
        EXPECT_EQ(folder.read(name), "old");
    }
    fs::permissions(closed, fs::perms::owner_all);
}

TEST(SaveFile, FullDiskLeavesTheOldFileWhole) {
    // A limit on the size of files ends a write as a full disk does, for any user.
    const TemporaryFolder folder;
    fs::permissions(folder.write("ship.shp", "old"), fs::perms::all);
    fs::permissions(folder.path(), fs::perms::all);
    EXPECT_EQ(asNobody([&] {
                  const rlimit limit = {1000, 1000};
                  signal(SIGXFSZ, SIG_IGN);
                  return setrlimit(RLIMIT_FSIZE, &limit) == 0 &&
                         faultOf(folder.path() / "ship.shp", std::string(5000, 'x')) ==
                             "cannot be saved: File too large";
              }),
              0);
    EXPECT_EQ(folder.read("ship.shp"), "old");
    EXPECT_EQ(folder.entries(), 1);
}

TEST(SaveFile, KillInTheMiddleLeavesOneOfTheTwoContents) {
    const TemporaryFolder folder;
    const std::string contents[] = {std::string(300'000, 'a'), std::string(300'000, 'b')};
    const fs::path file = folder.write("ship.shp", contents[0]);
    for (int round = 0; round < 30; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            for (int i = 0;; ++i) {
                saveFile(file, contents[i % 2]);
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(500 + round * 400));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const std::string found = folder.read("ship.shp");
        ASSERT_TRUE(found == contents[0] || found == contents[1]) << found.size() << " bytes";
        ASSERT_LE(folder.entries(), 2) << "what the kills before have left is still there";
    }
}

TEST(SaveFile, LeavesTheSavesOfOtherProgramsAlone) {
    const TemporaryFolder folder;
    fs::permissions(folder.path(), fs::perms::all);
    std::vector<pid_t> users(4);
    for (pid_t& user : users) {
        user = fork();
        if (user == 0) {
            // A program that has not saved yet looks for what others have left.
            const fs::path file = folder.path() / std::to_string(getpid());
            bool areSaved = true;
            for (int i = 0; i < 25 && areSaved; ++i) {
                areSaved = asNobody([&] { return faultOf(file, "ship").empty(); }) == 0;
            }
            _exit(areSaved ? 0 : 1);
        }
    }
    for (const pid_t user : users) {
        int status = -1;
        waitpid(user, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(folder.entries(), 4);
}
