// Whatever the program does to files: when the power goes, what it has reported done is there, and
// what was there before is whole.

#include "TemporaryFolder.h"
#include "caseFile.h"
#include "cutPower.h"
#include "recorders.h"
#include "runCommand.h"

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

/// What the commands of cases find in their environment, beside the folder that they run in.
std::string surroundings(const fs::path& folder) {
    return "export PROGRAM=" APP_FOLDER " CLI=" APP_FOLDER "/fleetwright-cli ACTS=" ACTS
           " PICTURES=" PICTURES_FOLDER " LC_ALL=C.UTF-8 ASAN_OPTIONS=detect_leaks=0 APP=" +
           folder.parent_path().string() + "/app HOME=" + folder.string() +
           " XDG_DATA_HOME=" + folder.string() + " XDG_CONFIG_HOME=" + folder.string() + "; ";
}

void run(const fs::path& folder, const std::string& command) {
    const CommandResult result =
        runCommand("cd " + folder.string() + "; " + surroundings(folder) + command);
    EXPECT_EQ(result.status, 0) << command << ":\n" << result.output;
}

/// Has a command follow on some of what was found, each on a disk of its own, an hour later.
void restart(const Damage& damage, const std::string& command) {
    constexpr std::size_t most = 10;
    for (std::size_t i = 0; i < damage.samples.size(); i += damage.samples.size() / most + 1) {
        const TemporaryFolder root;
        const fs::path folder = root.path() / "work";
        fs::create_directory(folder);
        for (const auto& [path, contents] : damage.samples[i]) {
            if (path.ends_with('/')) {
                fs::create_directories(folder / path);
            } else {
                const std::string file = root.write("work/" + path, *contents);
                fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(1));
            }
        }
        run(folder, command);
    }
}

/// What power cuts in the act of a case leave; nothing if this recorder is not permitted.
std::optional<Damage> damageOf(const Case& act, Recorder& record) {
    const TemporaryFolder root;
    const fs::path folder = root.path() / "work";
    fs::create_directory(folder);
    run(folder, act["before"]);
    const Files before = readFolder(folder);
    const auto changes = record(folder, surroundings(folder) + act["act"]);
    if (!changes) {
        return std::nullopt;
    }
    Disk disk(before);
    for (const Change& change : *changes) {
        disk.apply(change);
    }
    EXPECT_TRUE(disk.files(NamesKept::All, BytesKept::All) == readFolder(folder)) << "it has gaps";
    Damage damage = cutPower(before, *changes, {act["unit"], act["shelf"]});
    std::printf("%4zu of %4zu cuts guilty, %4zu states: %s\n", damage.guilty, damage.cuts,
                damage.states, act.title.c_str());
    return damage;
}

}  // namespace

TEST(PowerCut, LeavesWhatWasReportedDoneAndWhatWasThereBefore) {
    if (access("/dev/shm", W_OK) == 0) {
        setenv("TMPDIR", "/dev/shm", 1);  // in memory, where a sync takes no time
    }
    if (unshare(CLONE_NEWNS) == 0) {  // so that a mount is gone with this process, however it ends
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
    }
    expectCases("power/golden/acts.txt", [](const Case& act) {
        const auto byMount = damageOf(act, recordByMount);
        const auto byTrace = damageOf(act, recordByTrace);
        if (!byMount && !byTrace) {
            return std::string("neither a mount of one's own nor strace is permitted here");
        }
        const Damage& found = byMount ? *byMount : *byTrace;
        EXPECT_TRUE(!byTrace || byTrace->faults == found.faults) << act.title;
        if (found.faults.empty()) {
            restart(found, act["then"]);
        }
        std::string text;
        for (const std::string& fault : found.faults) {
            text += fault + '\n';
        }
        return text.empty() ? "nothing" : text;
    });
}
