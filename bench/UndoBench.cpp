// An undo, against the act that it takes back: one that fits a system, one on AutoMass, and a load.

#include "BenchWindow.h"
#include "GoalTable.h"

#include <chrono>
#include <functional>
#include <string>

namespace fleetwright {

namespace {

using Act = std::function<void(frmMain&)>;

void clickThrustOnce(frmMain& form) {
    form.hull.optThrust[form.hull.optThrust[3].isOn() ? 4 : 3].choose();
}

void addSystem(frmMain& form) {
    form.tree.AddSelectedWeapon(1);
}

void loadSample(frmMain& form) {
    const bool isOther = form.g_Ship->g_sTrimmedFileName == "Provost";
    form.files.loadFile(SOURCE_FOLDER "/data/ships/" +
                        std::string(isOther ? "Larkfield.shp" : "Provost.shp"));
}

/// A window with a ship of a few systems.
void prepare(frmMain& form) {
    loadSample(form);
    form.tree.tvWeapons.select(*form.tree.tvWeapons.find("Flak Thrower (F)"));
}

/// Times the act or its undo; the other one only happens.
void actOrUndo(benchmark::State& state, const Act& act, bool isUndo) {
    BenchWindow window(benchApplication());
    prepare(window.form());
    using Clock = std::chrono::steady_clock;
    for ([[maybe_unused]] auto _ : state) {
        const auto start = Clock::now();
        act(window.form());
        const auto between = Clock::now();
        window.form().history.mnuUndo.choose();
        const auto time = isUndo ? Clock::now() - between : between - start;
        state.SetIterationTime(std::chrono::duration<double>(time).count());
    }
}

/// The memory of a hundred thousand steps.
void memoryOfSteps(benchmark::State& state) {
    constexpr int acts = 100'000, between = 50;
    for ([[maybe_unused]] auto _ : state) {
        BenchWindow window(benchApplication());
        prepare(window.form());
        for (int act = 0; act < acts; ++act) {
            (act % between == 0 ? loadSample
             : act % 2 == 0     ? clickThrustOnce
                                : addSystem)(window.form());
        }
        state.counters[memoryCounter] =
            static_cast<double>(window.form().history.history()->size());
    }
}

/// What they may take.
void memoryAllowed(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        state.counters[memoryCounter] = 30e6;
    }
}

const bool areStepsRegistered = [] {
    const std::pair<std::string, Act> acts[] = {{"a click on a thrust button", clickThrustOnce},
                                                {"a system more", addSystem},
                                                {"a load", loadSample}};
    for (const auto& [name, act] : acts) {
        for (const bool isUndo : {false, true}) {
            benchmark::RegisterBenchmark(((isUndo ? "undo of " : "undone act, ") + name).c_str(),
                                         actOrUndo, act, isUndo)
                ->UseManualTime()
                ->Repetitions(9)
                ->MinTime(0.1);
        }
        RegisterGoal({"Undo of " + name + ", of the time of the act", "undo of " + name,
                      "undone act, " + name, 1.3, false});
    }
    benchmark::RegisterBenchmark("memory of 100,000 steps", memoryOfSteps)->Iterations(1);
    benchmark::RegisterBenchmark("memory that 100,000 steps may take", memoryAllowed)
        ->Iterations(1);
    RegisterGoal({"100,000 steps, of 30 MB of memory", "memory of 100,000 steps",
                  "memory that 100,000 steps may take", 1.0, false});
    return true;
}();

}  // namespace

}  // namespace fleetwright
