// A keystroke of the search for systems, with all that the rules of the window do about it, against
// one pass over the names.

#include "BenchWindow.h"
#include "GoalTable.h"
#include "text.h"

#include <chrono>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

constexpr int searchedRecords = 10'000;

/// A key, behind others, and what is looked for then.
struct Keystroke {
    std::string what;
    std::vector<std::string> before;
    std::string key;
    std::string typed;
};

void pressKey(benchmark::State& state, const Keystroke& stroke) {
    BenchWindow window(benchApplication(searchedRecords));
    TreeView& tree = window.form().tree.tvWeapons;
    tree.select(tree.nodes().front());
    for ([[maybe_unused]] auto _ : state) {
        using Clock = std::chrono::steady_clock;
        for (const std::string& key : stroke.before) {
            tree.pressKey(key);
        }
        const auto start = Clock::now();
        tree.pressKey(stroke.key);
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        tree.pressKey("Esc");
    }
}

/// Asks each name for the text, in letters that are small already.
void passOverNames(benchmark::State& state, const std::string& typed) {
    BenchWindow window(benchApplication(searchedRecords));
    std::vector<std::string> names;
    for (const TreeView::Node& node : window.form().tree.tvWeapons.nodes()) {
        names.push_back(toSmallLetters(node.key));
    }
    for ([[maybe_unused]] auto _ : state) {
        std::size_t matches = 0;
        for (const std::string& name : names) {
            matches += name.find(typed) != std::string::npos ? 1U : 0U;
        }
        benchmark::DoNotOptimize(matches);
    }
}

const bool registered = [] {
    for (const Keystroke& stroke : {Keystroke{"first letter of a search", {}, "e", "e"},
                                    {"further word", {"p", "u", " "}, "f", "pu f"},
                                    {"letter taken back", {"p", "u", "l"}, "Backspace", "pu"}}) {
        const std::string peer = stroke.what + ", one pass over the names";
        benchmark::RegisterBenchmark(stroke.what.c_str(), pressKey, stroke)
            ->UseManualTime()
            ->Repetitions(9)
            ->MinTime(0.1);
        benchmark::RegisterBenchmark(peer.c_str(), passOverNames, stroke.typed)
            ->Repetitions(9)
            ->MinTime(0.1);
        RegisterGoal({"Search of 10000, " + stroke.what + ": times one pass over the names",
                      stroke.what, peer, 2, false});
    }
    return true;
}();

}  // namespace

}  // namespace fleetwright
