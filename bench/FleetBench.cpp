// A fleet of 10,000 designs, against the figures of the same ships, by the tool; and its sheets.

#include "BenchFolder.h"
#include "GoalTable.h"
#include "SheetWorld.h"

#include <cstddef>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

/// A fleet of so many designs.
std::string fleetFile(std::size_t designs) {
    const std::string file = (benchFolder() / (std::to_string(designs) + ".fleet")).string();
    std::ofstream fleet(file);
    fleet << "FleetWright fleet 1\n";
    for (std::size_t i = 0; i < designs; ++i) {
        fleet << "ship = " << shipFiles()[i] << '\n';
    }
    return file;
}

/// A script that asks for the figures of all ships: no shell takes so long a command.
std::string figuresScript() {
    const std::string file = (benchFolder() / "figures.sh").string();
    std::ofstream script(file);
    script << toolCommand() << "figures";
    for (const std::string& ship : shipFiles()) {
        script << ' ' << ship;
    }
    script << '\n';
    return file;
}

/// Runs a command, and says how much memory it has taken at most, in KiB.
void measureMemory(benchmark::State& state, const std::string& command) {
    const std::string said = (benchFolder() / "memory").string();
    for ([[maybe_unused]] auto _ : state) {
        runCommand("/usr/bin/time -f %M -o " + said + ' ' + command);
        std::ifstream(said) >> state.counters[memoryCounter].value;
    }
}

std::string sheetsOf(std::size_t designs) {
    return toolCommand() + "fleet " + fleetFile(designs) + " --sheets " +
           (memoryFolder() / "fleet.pdf").string();
}

const bool registered = [] {
    const auto add = [](const std::string& name, const std::function<std::string()>& command) {
        const auto run = [command](benchmark::State& state) {
            const std::string line = command() + " >/dev/null";
            for ([[maybe_unused]] auto _ : state) {
                runCommand(line);
            }
        };
        benchmark::RegisterBenchmark(name.c_str(), run)
            ->Repetitions(3)
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    };
    add("fleet of 10000 designs", [] { return toolCommand() + "fleet " + fleetFile(10'000); });
    add("figures of 10000 ships, a process", [] { return "sh " + figuresScript(); });
    RegisterGoal({"A fleet of 10000 designs: times as long as their figures",
                  "fleet of 10000 designs", "figures of 10000 ships, a process", 1.1, false});
    for (const std::size_t designs : {300U, 3'000U}) {
        const std::string name =
            "most memory for sheets of " + std::to_string(designs) + " designs";
        benchmark::RegisterBenchmark(name.c_str(), [designs](benchmark::State& state) {
            measureMemory(state, sheetsOf(designs));
        })->Iterations(1);
    }
    RegisterGoal({"Sheets of a fleet: times the memory for 3000 designs as for 300",
                  "most memory for sheets of 3000 designs", "most memory for sheets of 300 designs",
                  1.4, false});  // 1.6 KB a design, of 14 MB
    return true;
}();

}  // namespace

}  // namespace fleetwright
