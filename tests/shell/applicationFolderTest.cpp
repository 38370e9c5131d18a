#include "applicationFolder.h"

#include "Error.h"
#include "TemporaryFolder.h"
#include "faults.h"
#include "paths.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// An installation and a user, as a package leaves them.
class InstalledFiles : public testing::Test {
protected:
    InstalledFiles() {
        setenv("XDG_DATA_HOME", (m_root.path() / "home").c_str(), 1);
        m_root.write("lib/w_dll.dll", "module 1");
        fs::create_directory_symlink("../share", m_root.path() / "lib/delivered");
        fs::create_directories(m_root.path() / "share/ssds");
        fs::create_symlink("../lib/w_dll.dll", m_root.path() / "share/w_dll.dll");
        deliver("weaps.dat", "catalogue 1");
        deliver("ships/Kept.shp", "kept 1");
        deliver("ships/Deleted.shp", "deleted 1");
        deliver("ships/Changed.shp", "changed 1");
    }
    InstalledFiles(const InstalledFiles&) = delete;
    InstalledFiles& operator=(const InstalledFiles&) = delete;
    ~InstalledFiles() override { unsetenv("XDG_DATA_HOME"); }

    /// Each version's files have a time of their own, as those of a package have.
    void deliver(const std::string& name, const std::string& contents) {
        m_root.write("share/" + name, contents);
        m_time += std::chrono::seconds(2);
        fs::last_write_time(m_root.path() / "share" / name, m_time);
    }

    void deliverSecondVersion() {
        for (const std::string name : {"Kept", "Deleted", "Changed", "New", "Own"}) {
            deliver("ships/" + name + ".shp", name + " 2");
        }
    }

    fs::path start() const { return applicationFolder(m_root.path() / "lib"); }
    std::string read(const std::string& name) const { return m_root.read(m_user + name); }
    void write(const std::string& name, const std::string& contents) const {
        m_root.write(m_user + name, contents);
    }
    bool exists(const std::string& name) const { return fs::exists(m_root.path() / m_user / name); }
    fs::path path(const std::string& name) const { return m_root.path() / m_user / name; }

    TemporaryFolder m_root;
    const std::string m_user = "home/FleetWright/";
    fs::file_time_type m_time = fs::file_time_type::clock::now() - std::chrono::hours(1);
};

}  // namespace

TEST_F(InstalledFiles, FillTheUsersFolderAtTheFirstStart) {
    EXPECT_EQ(start(), m_root.path() / "home/FleetWright");
    EXPECT_EQ(read("weaps.dat"), "catalogue 1");
    EXPECT_EQ(read("ships/Changed.shp"), "changed 1");
    EXPECT_TRUE(fs::is_directory(path("ssds")));
    m_root.write("lib/w_dll.dll", "module 2");
    EXPECT_EQ(read("w_dll.dll"), "module 2") << "it must fit the program on this machine";

    fs::remove(m_root.path() / "lib/delivered");
    EXPECT_EQ(start(), m_root.path() / "lib") << "nothing is installed, the folder is portable";
}

TEST_F(InstalledFiles, RenewOnlyWhatTheUserHasLeftAlone) {
    start();
    write("ships/Changed.shp", "mine");
    write("ships/Own.shp", "my own");
    fs::remove(path("ships/Deleted.shp"));
    fs::permissions(path("weaps.dat"), fs::perms::owner_read);
    deliver("weaps.dat", "catalogue 2");
    deliverSecondVersion();
    for (int i = 0; i < 2; ++i) {
        start();
        EXPECT_EQ(read("ships/Kept.shp"), "Kept 2");
        EXPECT_EQ(read("ships/New.shp"), "New 2");
        EXPECT_EQ(read("ships/Changed.shp"), "mine");
        EXPECT_EQ(read("ships/Own.shp"), "my own");
        EXPECT_FALSE(exists("ships/Deleted.shp"));
        EXPECT_EQ(read("weaps.dat"), "catalogue 1");
    }

    fs::remove(m_root.path() / "share/ships/Kept.shp");
    deliver("ships/Changed.shp", "changed 3");
    start();
    EXPECT_EQ(read("ships/Kept.shp"), "Kept 2") << "the user may have come to use it";
    EXPECT_EQ(read("ships/Changed.shp"), "mine");
    deliver("ships/Kept.shp", "kept 4");
    start();
    EXPECT_EQ(read("ships/Kept.shp"), "kept 4");
}

TEST_F(InstalledFiles, MakeGoodARunThatWasCutShort) {
    // Some files are in place and none is noted.
    write("ships/Kept.shp", "kept 1");
    start();
    EXPECT_EQ(read("ships/Changed.shp"), "changed 1");

    // A second version was begun: the record is still that of the first.
    deliverSecondVersion();
    write("ships/Kept.shp", "Kept 2");
    start();
    EXPECT_EQ(read("ships/Changed.shp"), "Changed 2");
    deliver("ships/Kept.shp", "kept 3");
    start();
    EXPECT_EQ(read("ships/Kept.shp"), "kept 3");
}

TEST_F(InstalledFiles, AreNotOpenedWhenNothingIsToDo) {
    start();
    const auto noted = fs::last_write_time(path(".delivered"));
    fs::remove(path("w_dll.dll"));
    fs::create_symlink(m_root.path() / "gone", path("w_dll.dll"));
    start();
    EXPECT_EQ(fs::last_write_time(path(".delivered")), noted);
    EXPECT_EQ(read("w_dll.dll"), "module 1") << "the program does not start without it";
}

TEST_F(InstalledFiles, NameTheFileThatCannotBeMade) {
    write("ships", "a file where a folder should be");
    EXPECT_TRUE(fileFaultOf([&] { start(); }).starts_with(path("ships: ").string()));
    fs::remove(path("ships"));
    start();
    EXPECT_EQ(read("ships/Kept.shp"), "kept 1");
}

TEST(UserDataFolder, IsWhereTheDesktopKeepsSuchData) {
    const char* const set = std::getenv("HOME");
    const std::string home = set == nullptr ? "" : set;
    setenv("HOME", "/home/someone", 1);
    setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(userDataFolder(), "/data/FleetWright");
    for (const char* const unusable : {"", "relative/folder"}) {
        setenv("XDG_DATA_HOME", unusable, 1);
        EXPECT_EQ(userDataFolder(), "/home/someone/.local/share/FleetWright");
    }
    unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(userDataFolder(), "/home/someone/.local/share/FleetWright");
    unsetenv("HOME");
    EXPECT_TRUE(userDataFolder().is_absolute());
    setenv("HOME", home.c_str(), 1);
}
