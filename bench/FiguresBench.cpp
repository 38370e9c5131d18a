// The figures of 10,000 ship files on two threads, against one.

#include "BenchFolder.h"
#include "GoalTable.h"
#include "ShipScreens.h"
#include "commands.h"
#include "inOrder.h"

#include <malloc.h>

#include <fstream>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

void workOutFigures(std::size_t ships, unsigned threads) {
    const std::vector<std::string>& files = shipFiles();
    std::size_t bytes = 0;
    ShipScreens screens(SOURCE_FOLDER "/data",
                        CatalogueFile::readOnce(SOURCE_FOLDER "/data/weaps.dat"));
    inOrder(
        ships, threads,
        [&](std::size_t index) {
            return screens.lend([&](ShipOnScreen& screen) {
                screen.load(files[index]);
                return Result{.output = figuresOf(files[index], screen.ship()), .complaints = {}};
            });
        },
        [&](std::size_t, const Result& result) { bytes += result.output.size(); });
    benchmark::DoNotOptimize(bytes);
}

void figures(benchmark::State& state, unsigned threads) {
    for ([[maybe_unused]] auto _ : state) {
        workOutFigures(shipFiles().size(), threads);
    }
}

/// Lets the mark of the most memory that this process has held begin anew, without what other
/// benchmarks have given back.
void resetPeakMemory() {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5;
}

/// The most memory that this process has held since then, in KiB.
double peakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmHWM:") {
            double kibibytes = 0;
            status >> kibibytes;
            return kibibytes;
        }
    }
    return 0;
}

void figuresMemory(benchmark::State& state, std::size_t ships) {
    for ([[maybe_unused]] auto _ : state) {
        resetPeakMemory();
        workOutFigures(ships, 2);
        state.counters[memoryCounter] = peakMemory();
    }
}

const bool registered = [] {
    for (const std::size_t ships : {1'000U, 10'000U}) {
        const std::string name = "most memory for " + std::to_string(ships) + " ships";
        benchmark::RegisterBenchmark(name.c_str(), figuresMemory, ships)->Iterations(1);
    }
    RegisterGoal({"Figures: times the memory for 10000 ships as for 1000",
                  "most memory for 10000 ships", "most memory for 1000 ships", 1.1, false,
                  "What other benchmarks have left in the process counts, and hangs on their "
                  "order: three whole runs of the same code gave 1.10, 1.18 and 1.53. Processes "
                  "of their own take 7.3 and 10.3 MB, most of the difference for the names of "
                  "9000 more files."});
    for (const unsigned threads : {1U, 2U}) {
        const std::string name = "figures of 10000 ships, threads: " + std::to_string(threads);
        benchmark::RegisterBenchmark(name.c_str(), figures, threads)
            ->Repetitions(5)
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    }
    RegisterGoal({"Figures of 10000 ships: times as fast on two cores as on one",
                  "figures of 10000 ships, threads: 1", "figures of 10000 ships, threads: 2", 1.7,
                  true});
    return true;
}();

}  // namespace

}  // namespace fleetwright
