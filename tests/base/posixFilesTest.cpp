// What files are on this kind of system, with owners, rights, attributes, links and pipes, and what
// becomes of them when a process is killed.

#include "saveFile.h"

#include "Error.h"
#include "FileFaults.h"
#include "FileLock.h"
#include "FileStamp.h"
#include "OpenFile.h"
#include "TemporaryFolder.h"
#include "readFile.h"
#include "testSystem.h"

#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <thread>
#include <vector>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

constexpr uid_t nobody = 65534;
constexpr gid_t shared = 2000;  // a group that nobody belongs to

/// Acts as a user without rights of his own, since nothing is forbidden to root.
bool asNobody(const std::function<bool()>& act) {
    if (getuid() != 0) {
        return act();
    }
    const bool isNobody =
        setgroups(1, &shared) == 0 && setegid(nobody) == 0 && seteuid(nobody) == 0;
    const bool isDone = act();
    return seteuid(0) == 0 && setegid(0) == 0 && setgroups(0, nullptr) == 0 && isNobody && isDone;
}

std::string faultOf(const fs::path& target, std::string_view contents) {
    try {
        saveFile(target, contents);
    } catch (const FileError& error) {
        return error.what();
    }
    return {};
}

/// Owner, group and mode of a file, in one text.
std::string ownersOf(const fs::path& file) {
    struct stat status{};
    stat(file.c_str(), &status);
    return std::to_string(status.st_uid) + ' ' + std::to_string(status.st_gid) + ' ' +
           std::to_string(status.st_mode);
}

/// The same with what tells it from another file of that name.
std::string identityOf(const fs::path& file) {
    return ownersOf(file) + ' ' + std::to_string(fileStamp(file)->number);
}

std::string attributeOf(const fs::path& file, const char* name) {
    std::array<char, 100> value{};
    const ssize_t size = getxattr(file.c_str(), name, value.data(), value.size());
    return size < 0 ? "none" : std::string(value.data(), static_cast<std::size_t>(size));
}

/// A list of access rights as it stands in an attribute: one more user may read.
std::string accessList() {
    const std::uint16_t entries[][4] = {{1, 6, 0xffff, 0xffff},
                                        {2, 4, 1234, 0},
                                        {4, 4, 0xffff, 0xffff},
                                        {16, 4, 0xffff, 0xffff},
                                        {32, 0, 0xffff, 0xffff}};
    return std::string("\2\0\0\0", 4) +
           std::string(reinterpret_cast<const char*>(entries), sizeof entries);
}

bool setAttribute(const fs::path& file, const char* name, const std::string& value) {
    return setxattr(file.c_str(), name, value.data(), value.size(), 0) == 0;
}

/// A folder for all, with one of theirs that is where users have what is put aside.
struct SharedFolder : TemporaryFolder {
    SharedFolder() {
        fs::create_directory(path() / "home");
        for (const fs::path& each : {path(), path() / "home"}) {
            fs::permissions(each, fs::perms::all);
        }
        setVariable(userDataVariable, (path() / "home").string());
    }
    SharedFolder(const SharedFolder&) = delete;
    SharedFolder& operator=(const SharedFolder&) = delete;
    ~SharedFolder() { unsetVariable(userDataVariable); }

    /// A file of root's in a folder of these rights, which everybody may write to.
    fs::path writable(const std::string& name, mode_t folderMode) const {
        fs::path file = write(name, "old");
        fs::permissions(file, fs::perms(0666));
        fs::permissions(file.parent_path(), fs::perms(folderMode));
        return file;
    }
    /// What was put aside and is still there.
    int copies() const {
        const fs::path recovered = path() / "home/FleetWright/recovered";
        return fs::exists(recovered)
                   ? static_cast<int>(std::distance(fs::directory_iterator(recovered), {}))
                   : 0;
    }
};

}  // namespace

TEST(PosixFiles, KeepsOwnerGroupAndMode) {
    const TemporaryFolder folder;
    const fs::path file = folder.write("ship.shp", "old");
    const bool isGivenAway = chown(file.c_str(), nobody, shared) == 0;  // root may
    fs::permissions(file, fs::perms(isGivenAway ? 04750 : 0750));
    const std::string owners = ownersOf(file);
    saveFile(file, "new");
    EXPECT_EQ(ownersOf(file), owners);
    EXPECT_TRUE(isGivenAway || getuid() != 0);
}

TEST(PosixFiles, KeepsAttributesAndListsOfRights) {
    constexpr const char *note = "user.note", *rights = "system.posix_acl_access";
    const SharedFolder folder;
    const fs::path file = folder.write("ship.shp", "old"), plain = folder.write("plain.shp", "old");
    if (!setAttribute(file, note, "mine") || !setAttribute(file, rights, accessList()) ||
        !setAttribute(folder.path(), "system.posix_acl_default", accessList())) {
        GTEST_SKIP() << "this file system knows none";
    }
    saveFile(file, "new");
    EXPECT_EQ(attributeOf(file, note), "mine");
    EXPECT_EQ(attributeOf(file, rights), accessList());
    // A folder that hands its list on gives it to new files, and to no other.
    const fs::perms mode = fs::status(plain).permissions();
    saveFile(plain, "new");
    saveFile(folder.path() / "other.shp", "new");
    EXPECT_EQ(attributeOf(plain, rights), "none");
    EXPECT_EQ(fs::status(plain).permissions(), mode);
    EXPECT_NE(attributeOf(folder.path() / "other.shp", rights), "none");

    // Where an attribute cannot be had, the file stays the one that has it.
    FileFaults faults;
    faults.forbid(FileCall::SetAttribute);
    const std::string identity = identityOf(file);
    saveFile(file, "newer");
    EXPECT_EQ(folder.read("ship.shp"), "newer");
    EXPECT_EQ(identityOf(file), identity);
    EXPECT_EQ(attributeOf(file, note), "mine");
    EXPECT_EQ(folder.copies(), 0);
}

TEST(PosixFiles, OverwritesWhatNoNewFileCanReplace) {
    const SharedFolder folder;
    const auto saves = [](const fs::path& file, const std::string& fault = {}) {
        return asNobody([&] { return faultOf(file, "new") == fault; });
    };
    // One of the group saves a file that it shares with its owner.
    const fs::path ours = folder.writable("ours/ship.shp", 0777);
    ASSERT_TRUE(getuid() != 0 || chown(ours.c_str(), 1000, shared) == 0);
    fs::permissions(ours, fs::perms(0664));
    const std::string identity = identityOf(ours);
    EXPECT_TRUE(saves(ours));
    EXPECT_EQ(folder.read("ours/ship.shp"), "new");
    EXPECT_TRUE(getuid() != 0 || identityOf(ours) == identity);
    // So does one who may write to his own file and not read it, and who may not look around.
    const fs::path mine = folder.writable("mine/ship.shp", 0733);
    ASSERT_TRUE(getuid() != 0 || chown(mine.c_str(), nobody, nobody) == 0);
    fs::permissions(mine, fs::perms(0222));
    EXPECT_TRUE(saves(mine));
    EXPECT_EQ(fs::status(mine).permissions(), fs::perms(0222));
    // What was put aside before stays.
    folder.write("home/FleetWright/recovered/ship as it was.shp", "before");
    folder.write("home/FleetWright/recovered/ship as it was (2).shp", "before, too");
    // Folders that take no new file, or let nobody replace one of another.
    for (const auto& [name, mode] :
         {std::pair("closed/ship.shp", 0555), {"sticky/ship.shp", 01777}}) {
        EXPECT_TRUE(saves(folder.writable(name, static_cast<mode_t>(mode)))) << name;
        EXPECT_EQ(folder.read(name), "new");
    }
    const fs::path longName = folder.writable("long/" + std::string(251, 'n') + ".shp", 0555);
    EXPECT_TRUE(saves(longName));
    EXPECT_EQ(folder.copies(), 2);
    EXPECT_EQ(folder.read("home/FleetWright/recovered/ship as it was.shp"), "before");
    EXPECT_EQ(folder.read("home/FleetWright/recovered/ship as it was (2).shp"), "before, too");

    // What has other names would change under those, too.
    const fs::path linked = folder.writable("linked/ship.shp", 0555);
    fs::create_hard_link(linked, folder.path() / "twin");
    EXPECT_TRUE(getuid() != 0 || saves(linked, "cannot be saved: Permission denied; if it were "
                                               "overwritten, its other names would change, too"));
    // One that cannot be read cannot be put aside.
    const fs::path secret = folder.writable("secret/ship.shp", 0555);
    fs::permissions(secret, fs::perms(0222));
    EXPECT_TRUE(getuid() != 0 ||
                saves(secret, "cannot be saved: cannot be read: Permission denied"));
    // Nor is anything overwritten while another run does that.
    const FileLock lock(ours);
    EXPECT_TRUE(getuid() != 0 || saves(ours, "cannot be saved: another program is writing it"));
    // Without a place for the copy it is refused, too.
    setVariable(userDataVariable, folder.path().string());
    fs::permissions(folder.path(), fs::perms(0755));
    const fs::path place = folder.path() / "FleetWright/recovered";
    const fs::path closed = folder.writable("shut/other.shp", 0555);
    EXPECT_TRUE(getuid() != 0 ||
                saves(closed, "cannot be saved: Permission denied; nor can it be overwritten (" +
                                  place.string() + ": cannot be made: Permission denied)"));
    EXPECT_TRUE(getuid() != 0 || folder.read("secret/ship.shp") == "old");
    EXPECT_EQ(folder.read("shut/other.shp") + folder.read("twin"), "oldold");
}

TEST(PosixFiles, FollowsLinksAndKeepsThem) {
    const TemporaryFolder folder;
    folder.write("ships/real.shp", "old");
    fs::create_symlink("ships/real.shp", folder.path() / "link.shp");
    fs::create_symlink("ships/new.shp", folder.path() / "dangling.shp");
    fs::create_hard_link(folder.path() / "ships/real.shp", folder.path() / "twin");
    EXPECT_NE(otherNamesNotice(folder.path() / "link.shp"), "");
    saveFile(folder.path() / "link.shp", "new");
    saveFile(folder.path() / "dangling.shp", "made");
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link.shp"));
    EXPECT_EQ(folder.read("ships/real.shp"), "new");
    EXPECT_EQ(folder.read("ships/new.shp"), "made");
    // The size of one that the system makes up is said to be 0.
    EXPECT_NE(readBytes("/proc/self/status").find("Name:"), std::string::npos);
}

TEST(PosixFiles, RefusesWhatCannotBeSavedAndLeavesItAsItWas) {
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
        const bool isOwn = getuid() != 0 && name != "closed/other.shp";
        EXPECT_TRUE(isOwn || asNobody(isRefused)) << name;
    }
    EXPECT_TRUE(fs::is_symlink(folder.path() / "a"));
    for (const char* const name : {"protected", "closed/ship.shp", "another.shp"}) {
        EXPECT_EQ(folder.read(name), "old");
    }
    fs::permissions(closed, fs::perms::owner_all);
}

TEST(PosixFiles, FullDiskLeavesTheOldFileWhole) {
    // A limit on the size of files ends a write as a full disk does, for any user; the file of
    // another is overwritten.
    const SharedFolder folder;
    fs::permissions(folder.write("ship.shp", "old"), fs::perms::all);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit = {1000, before.rlim_max};
    letFileSizeLimitFail();
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_TRUE(asNobody([&] {
        return faultOf(folder.path() / "ship.shp", std::string(5000, 'x')) ==
               "cannot be saved: File too large";
    }));
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(folder.read("ship.shp"), "old");
    EXPECT_EQ(folder.entries(), 2);
    EXPECT_EQ(folder.copies(), 0);
}

TEST(PosixFiles, KillInTheMiddleLeavesOneOfTheTwoContents) {
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

TEST(PosixFiles, LeavesTheSavesOfOtherProgramsAlone) {
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
                int status = 0;
                if (fork() == 0) {
                    _exit(faultOf(file, "ship").empty() ? 0 : 1);
                }
                areSaved = wait(&status) > 0 && status == 0;
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

TEST(PosixFiles, AreLinkedAndExchanged) {
    const TemporaryFolder folder;
    const fs::path a = folder.write("a", "a"), sub = folder.path() / "sub";
    fs::create_directory(sub);
    std::vector<FileCall> calls;
    hookFileCalls([&calls](FileCall call, const fs::path&) {
        calls.push_back(call);
        return std::error_code();
    });
    EXPECT_FALSE(makeLink("../a", sub / "link"));
    std::error_code error;
    const OpenFile open(sub / "link", OpenFile::Use::Write, error);
    EXPECT_EQ(error, std::errc::too_many_symbolic_link_levels);
    EXPECT_FALSE(exchangeForGood(a, sub));
    EXPECT_TRUE(fs::is_symlink(a / "link") && fs::is_regular_file(sub));
    EXPECT_EQ(exchangeForGood(a, folder.path() / "none"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(syncFolder(folder.path() / "none"), std::errc::no_such_file_or_directory);
    hookFileCalls({});
    using enum FileCall;
    EXPECT_EQ(calls, (std::vector{MakeLink, Open, Exchange, SyncFolder, Exchange, SyncFolder}));
}

TEST(PosixFiles, AreNotReadIfTheyAreTooLargeOrNeverEnd) {
    const TemporaryFolder folder;
    fs::resize_file(folder.write("huge", ""), std::uintmax_t{1} << 40);
    EXPECT_THROW(readTextFile(folder.path() / "huge"), FileError);
    EXPECT_THROW(readTextFile("/dev/zero"), FileError);
}
