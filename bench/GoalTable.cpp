#include "GoalTable.h"

#include <algorithm>
#include <cstdio>

namespace fleetwright {

namespace {

std::vector<Goal>& goals() {
    static std::vector<Goal> all;
    return all;
}

}  // namespace

RegisterGoal::RegisterGoal(Goal goal) {
    goals().push_back(std::move(goal));
}

bool GoalResult::isMet() const {
    return !goal->ratio || (goal->isAtLeast ? measured >= *goal->ratio : measured <= *goal->ratio);
}

void GoalTable::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration) {
            continue;
        }
        const auto memory = run.counters.find(memoryCounter);
        const double measured =
            memory != run.counters.end()
                ? memory->second.value
                : run.real_accumulated_time / static_cast<double>(run.iterations);
        const auto [known, isNew] = m_smallest.try_emplace(run.run_name.function_name, measured);
        if (!isNew && measured < known->second) {
            known->second = measured;
        }
    }
}

void GoalTable::Finalize() {
    ConsoleReporter::Finalize();
    std::printf("\n%-64s %10s %10s  %s\n", "Goal", "wanted", "measured", "");
    for (const GoalResult& result : results()) {
        const Goal& goal = *result.goal;
        if (!goal.ratio) {
            std::printf("%-64s %10s %10.2f\n", goal.what.c_str(), "", result.measured);
            continue;
        }
        std::printf("%-64s %2s %7.2f %10.2f  %s\n", goal.what.c_str(),
                    goal.isAtLeast ? ">=" : "<=", *goal.ratio, result.measured,
                    result.isMet() ? "met" : "NOT MET");
    }
}

std::vector<GoalResult> GoalTable::results() const {
    std::vector<GoalResult> all;
    for (const Goal& goal : goals()) {
        const auto above = m_smallest.find(goal.above);
        const auto below = m_smallest.find(goal.below);
        if (above != m_smallest.end() && below != m_smallest.end()) {
            all.push_back({&goal, above->second / below->second});
        }
    }
    return all;
}

bool GoalTable::areAllMet() const {
    return std::ranges::all_of(results(), &GoalResult::isMet);
}

bool GoalTable::isWhole() const {
    return results().size() == goals().size();
}

}  // namespace fleetwright
