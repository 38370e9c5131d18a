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

    /// Whether every goal that was measured is met; after Finalize.
    bool areAllMet() const { return m_areAllMet; }

private:
    std::map<std::string, double> m_smallest;
    bool m_areAllMet = true;
};

}  // namespace fleetwright
