#include "PerformancePage.h"

#include "saveFile.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <thread>

namespace fleetwright {

namespace {

/// The value of the first line of a file that begins with a name; empty if there is none.
std::string firstValue(const std::string& file, const std::string& name) {
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with(name)) {
            const std::size_t start = line.find_first_not_of(" \t", line.find(':') + 1);
            return start == std::string::npos ? std::string() : line.substr(start);
        }
    }
    return {};
}

std::string rounded(double number) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.2f", number);
    return text.data();
}

std::string today() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 16> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d", std::gmtime(&now));
    return text.data();
}

std::string machine() {
    const double memory = std::atof(firstValue("/proc/meminfo", "MemTotal").c_str()) / (1 << 20);
    std::array<double, 3> load{};
    getloadavg(load.data(), 3);
    return "- Processor: " + firstValue("/proc/cpuinfo", "model name") + ", " +
           std::to_string(std::thread::hardware_concurrency()) +
           " cores\n- Memory: " + rounded(memory) +
           " GB\n- Compiler: GCC " __VERSION__ "\n- Load in the last 15 minutes: " +
           rounded(load[2]) + "\n- Date: " + today() + "\n";
}

std::string row(const GoalResult& result) {
    const Goal& goal = *result.goal;
    const std::string wanted =
        goal.ratio ? (goal.isAtLeast ? "at least " : "at most ") + rounded(*goal.ratio) : "";
    const std::string verdict = !goal.ratio ? "" : result.isMet() ? "met" : "**not met**";
    return "| " + goal.what + " | " + wanted + " | " + rounded(result.measured) + " | " + verdict +
           " |\n";
}

}  // namespace

void writePerformancePage(const std::filesystem::path& file,
                          const std::vector<GoalResult>& results) {
    std::string page = "# Performance\n\n"
                       "`./dev bench` has made this page. Each figure is a ratio of two things "
                       "that were timed in the "
                       "same\nrun, the fastest of several repetitions each; so machines can be "
                       "compared, and a busy one "
                       "shows.\n\n" +
                       machine() + "\n| What | wanted | measured | |\n|---|---|---|---|\n";
    std::string limits;
    for (const GoalResult& result : results) {
        page += row(result);
        if (!result.isMet()) {
            limits += "\n**" + result.goal->what + ".** " +
                      (result.goal->limit.empty() ? "Its limit has not been measured."
                                                  : result.goal->limit) +
                      "\n";
        }
    }
    if (!limits.empty()) {
        page += "\n## What is not met, and why\n" + limits;
    }
    saveFile(file, page);
}

}  // namespace fleetwright
