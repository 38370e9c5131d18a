#include "testWindow.h"

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <thread>
#include <vector>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// A pipe on which a program says how far it is.
struct Pipe {
    Pipe() { EXPECT_EQ(pipe(ends), 0); }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        close(ends[0]);
        close(ends[1]);
    }

    int ends[2] = {-1, -1};
};

}  // namespace

TEST(SaveKill, CostsNothingAtAnyMoment) {
    using namespace std::chrono;
    constexpr int rounds = 30;
    TestWindow test;
    frmMain& window = test.window();
    window.show();
    test.file = (test.folder().path() / "ship.shp").string();
    window.files.mnuSaveAs.choose();
    window.hull.optThrust[5].choose();
    const std::string changed = test.ship().shipFile();
    const std::string old = test.folder().read("ship.shp");
    microseconds wholeSave{1};
    for (int round = 0; round <= rounds; ++round) {
        test.folder().write("ship.shp", old);
        const Pipe progress;
        const pid_t child = fork();
        if (child == 0) {
            window.recovery.tmrRecovery.tick();
            static_cast<void>(write(progress.ends[1], "a", 1));
            window.files.mnuSave.choose();
            static_cast<void>(write(progress.ends[1], "b", 1));
            pause();
        }
        char step = 0;
        ASSERT_EQ(read(progress.ends[0], &step, 1), 1);
        const auto start = steady_clock::now();
        if (round == 0) {
            ASSERT_EQ(read(progress.ends[0], &step, 1), 1);
            wholeSave = duration_cast<microseconds>(steady_clock::now() - start);
        } else {
            std::this_thread::sleep_until(start + wholeSave * (round % 11) / 10);
        }
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        RecoveryFolder next(test.folder().path() / "recovered",
                            {.ownMark = "2", .isRunning = [](const std::string&) { return false; }},
                            [] { return std::string(); });
        const std::vector<RecoveryFolder::Design> recovered = next.keepLeftBehind();
        const std::string found = test.folder().read("ship.shp");
        EXPECT_TRUE(found == changed || found == old) << found;
        EXPECT_TRUE(found == changed || !recovered.empty()) << "the change is nowhere";
        for (const RecoveryFolder::Design& design : recovered) {
            EXPECT_EQ(test.folder().read("recovered/" + design.file.filename().string()), changed);
            fs::remove(design.file);
        }
    }
}
