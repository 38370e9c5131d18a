#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

inline constexpr const char* memoryCounter = "memory";

/// A ratio of two benchmarks of the same run that is to be kept, or is only there to be seen.
/// Machines differ and are noisy, so that no goal is a number of seconds. A benchmark that measures
/// memory says so in a counter with the name `memoryCounter`, which then counts in place of its
/// time.
struct Goal {
    std::string what;
    std::string above;                 ///< benchmark that stands above the line
    std::string below;                 ///< benchmark that stands below it
    std::optional<double> ratio = {};  ///< none: whatever comes out is well
    bool isAtLeast = false;            ///< the ratio is to be reached, and not to be kept below
    /// Why it is not met, if it is known not to be: what a measurement of its limit says.
    std::string limit = {};
};

/// What a run says of a goal.
struct GoalResult {
    const Goal* goal;
    double measured;

    /// Also if there is only something to be seen.
    bool isMet() const;
};

/// Makes a goal known; before main.
struct RegisterGoal {
    explicit RegisterGoal(Goal goal);
};

/// Prints the benchmarks as they come, and at the end all goals in one table. Of a benchmark's
/// repetitions the fastest counts: what disturbs a run makes it slower, never faster.
class GoalTable : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /// All goals whose benchmarks ran, in the order in which they are known.
    std::vector<GoalResult> results() const;

    /// Whether every goal that was measured is met.
    bool areAllMet() const;

    /// Whether no goal was left out on the command line.
    bool isWhole() const;

private:
    std::map<std::string, double> m_smallest;
};

}  // namespace fleetwright
