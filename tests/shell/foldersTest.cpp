// The user's folder: files of acts of packages, of the user and of starts of the program, each with
// all files that look different then.

#include "Error.h"
#include "FileFaults.h"
#include "TemporaryFolder.h"
#include "applicationFolder.h"
#include "caseFile.h"
#include "faults.h"
#include "leftovers.h"
#include "paths.h"
#include "testSystem.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

/// An installation and a user, as a package leaves them.
class Folders {
public:
    Folders() {
        setVariable(userDataVariable, m_root.path().string());
        m_root.write("lib/w_dll.dll", "module");
        fs::create_directory_symlink("../share", m_root.path() / "lib/delivered");
        fs::create_directories(m_root.path() / "share/ssds");
    }
    Folders(const Folders&) = delete;
    Folders& operator=(const Folders&) = delete;
    ~Folders() {
        setVariable("HOME", m_home);
        unsetVariable(userDataVariable);
    }

    std::string run(const std::string& acts) {
        return playActs(acts, {.act = [this](const std::string& act) { doLine(act); },
                               .takeLog = [this] { return std::exchange(m_log, {}); },
                               .look = [this] { return look(); },
                               .folder = m_root.path().string()});
    }

private:
    /// The files of the user's folder.
    std::map<std::string, std::string> look() {
        std::map<std::string, std::string> seen;
        const fs::path users = m_root.path() / "FleetWright";
        for (const auto& entry : fs::recursive_directory_iterator(m_root.path())) {
            const fs::path& file = entry.path();
            const std::string name = file.lexically_relative(users).string();
            if (!name.starts_with("..") && file != m_record) {
                seen[name] = (fs::is_symlink(file) ? "link to " : "") +
                             (fs::is_directory(file) ? "folder" + openTo(file)
                                                     : m_root.read("FleetWright/" + name));
            }
        }
        return seen;
    }

    /// Says so where others may look into the user's folder.
    std::string openTo(const fs::path& folder) const {
        const bool isUsers = folder == m_root.path() / "FleetWright";
        const fs::perms others = fs::perms::group_all | fs::perms::others_all;
        return isUsers && (fs::status(folder).permissions() & others) != fs::perms::none ? " of all"
                                                                                         : "";
    }

    void doLine(const std::string& line) {
        try {
            const auto [act, rest] = cut(line);
            perform(act, cut(rest).first, cut(rest).second);
        } catch (const FileError& error) {
            m_log += error.file().string() + ": " + error.what() + "; ";
        }
    }

    void perform(const std::string& act, const std::string& name, const std::string& text) {
        const fs::path file = m_root.path() / name;
        const std::map<std::string, std::function<void()>> acts = {
            {"deliver", [&] { deliver(name, text); }},
            {"start", [&] { start(); }},
            {"write", [&] { m_root.write(name, text); }},
            {"remove", [&] { fs::remove_all(file); }},
            {"protect", [&] { fs::permissions(file, fs::perms::owner_read); }},
            {"open", [&] { fs::permissions(file, fs::perms::all); }},
            {"link", [&] { fs::create_symlink(m_root.path() / text, file); }},
            {"tidy", [&] { takeLeftoversAway(userDataFolder()); }},
            {"set", [&] { setVariable(name, text); }},
            {"unset", [&] { unsetVariable(name); }},
            {"ask", [&] { m_log += replaced(userDataFolder(), m_passwd, "PASSWD"); }}};
        acts.at(act)();
    }

    /// Each version's files have a time of their own, as those of a package have.
    void deliver(const std::string& name, const std::string& contents) {
        m_root.write("share/" + name, contents);
        m_time += std::chrono::seconds(2);
        fs::last_write_time(m_root.path() / "share" / name, m_time);
    }

    /// Says where the files are, and whether it has noted anew what was given.
    void start() {
        std::error_code isFirst;
        fs::last_write_time(m_record, m_old, isFirst);
        m_log += applicationFolder(m_root.path() / "lib").string();
        m_log += fs::last_write_time(m_record, isFirst) == m_old ? "; " : " noted; ";
    }

    TemporaryFolder m_root;
    const fs::path m_record = m_root.path() / "FleetWright/.delivered";
    const fs::file_time_type m_old = fs::file_time_type::clock::now() - std::chrono::hours(1);
    fs::file_time_type m_time = m_old;
    const std::string m_home = getenv("HOME");
    const std::string m_passwd = getpwuid(getuid())->pw_dir;
    std::string m_log;
};

}  // namespace

TEST(Folders, HoldWhatPackagesUsersAndRunsLeaveInThem) {
    expectCases("shell/golden/folders.txt",
                [](const Case& each) { return Folders().run(each["acts"]); });
}

TEST(Folders, AreMadeGoodByTheNextStartWhereverOneIsCutShort) {
    const auto refreshes = [](int nth, FileFaults::Kind kind) {
        const TemporaryFolder root;
        const fs::path delivered = root.path() / "share", user = root.path() / "user";
        const auto deliver = [&](const char* contents, std::initializer_list<const char*> names) {
            for (const char* const name : names) {
                root.write(std::string("share/") + name, contents);
            }
        };
        const auto holds = [&](const char* contents) {
            return root.read("user/weaps.dat") == contents &&
                   root.read("user/maps/B.map") == contents;
        };
        deliver("1", {"weaps.dat"});
        refreshUserFolder(delivered, user);
        deliver("22", {"weaps.dat", "maps/B.map"});
        bool isReached = false;
        std::string fault;
        {
            const FileFaults faults(nth, kind);
            fault = fileFaultOf([&] { refreshUserFolder(delivered, user); });
            isReached = faults.calls() >= nth;
        }
        EXPECT_TRUE(!fault.empty() || holds("22")) << "without a word, call " << nth;
        deliver("333", {"weaps.dat", "maps/B.map"});
        refreshUserFolder(delivered, user);
        EXPECT_TRUE(holds("333")) << "call " << nth;
        return isReached;
    };
    for (const auto kind : {FileFaults::Kind::IsLast, FileFaults::Kind::Fails}) {
        for (int nth = 1; refreshes(nth, kind); ++nth) {
        }
    }
}
