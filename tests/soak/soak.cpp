// Acts at random on the windows of the program for as long as nobody would sit there, and shows
// that memory does not grow but by the steps that can be undone:
//
//     soak [steps] [ACTS [SEED]]     1000000 and 1 if they are not said
//
// With "steps" they come in courses of 40000, each of which is undone, redone and undone again.

#include "StepsWalk.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>

using namespace fleetwright;

namespace {

#ifdef FLEETWRIGHT_SANITIZED
constexpr bool isJudged = false;  // what is freed is held back for a while; leaks are found
#else
constexpr bool isJudged = true;
#endif

/// Memory that this program has in use, in KiB.
long residentMemory() {
    long size = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

/// The same but for what the steps take that can be undone, which is theirs by right.
long memoryBesidesSteps(const Actor& actor) {
    const std::optional<History>& history = actor.main.history.history();
    return residentMemory() - (history ? static_cast<long>(history->size() / 1024) : 0);
}

/// By how much memory has grown between the first tenth of all acts and their end, in KiB.
long growthIn(int acts, Dice& dice) {
    std::optional<Actor> actor;
    long firstTenth = 0;
    for (int done = 0; done < acts; ++done) {
        if (!actor || actor->hasEnded()) {
            actor.emplace(dice);
        }
        actor->act();
        if ((done + 1) % std::max(1, acts / 10) == 0) {
            const long memory = memoryBesidesSteps(*actor);
            std::printf("%8d acts: %6ld KiB resident, and %ld KiB of steps\n", done + 1, memory,
                        residentMemory() - memory);
            std::fflush(stdout);
            firstTenth = firstTenth == 0 ? memory : firstTenth;
        }
    }
    return memoryBesidesSteps(*actor) - firstTenth;
}

void walkSteps(int acts, Dice& dice) {
    using Clock = std::chrono::steady_clock;
    // Each design that is given up is put aside, and later acts list them all: one course of all
    // acts would not come to an end.
    constexpr int longest = 40'000;
    for (int done = 0; done < acts;) {
        const auto start = Clock::now();
        const int course = std::min(longest, acts - done);
        StepsWalk walk(dice);
        walk.walk(course);
        done += course;
        const std::size_t steps = walk.history().count();
        std::printf(
            "%8d acts: %zu steps undone and redone, %zu bytes each, in %lld s; %ld KiB resident\n",
            done, steps, walk.history().size() / std::max<std::size_t>(1, steps),
            static_cast<long long>(
                std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - start).count()),
            residentMemory());
        std::fflush(stdout);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const bool areSteps = argc > 1 && std::strcmp(argv[1], "steps") == 0;
    argc -= areSteps ? 1 : 0;
    argv += areSteps ? 1 : 0;
    const int acts = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    // Each save waits for its disk; one in memory answers at once.
    if (std::filesystem::is_directory("/dev/shm")) {
        setenv("TMPDIR", "/dev/shm", 0);
    }
    Dice dice(seed);
    try {
        if (areSteps) {
            walkSteps(acts, dice);
            return 0;
        }
        constexpr long slack = 1024;
        const long growth = growthIn(acts, dice);
        std::printf("%ld KiB more than after the first tenth; up to %ld may be\n", growth, slack);
        return growth <= slack || !isJudged ? 0 : 1;
    } catch (const std::exception& error) {
        std::printf("%s\nseed %llu\n", error.what(), static_cast<unsigned long long>(seed));
        return 1;
    }
}
