#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace fleetwright {

/// What a command makes of one input.
struct Result {
    std::string output;                   ///< for standard output
    std::vector<std::string> complaints;  ///< for standard error, a line each
};

/// Works on the inputs 0 to `count` - 1 with so many `threads` and hands their results to `take`
/// in the order of the inputs, as soon as they are there. `work` runs in parallel with itself,
/// `take` does not. Only a fixed number of results waits at any time, however many inputs there
/// are. An exception of either ends everything and is thrown here. Where the system grants no
/// further threads, those there are do the work.
void inOrder(std::size_t count, unsigned threads, const std::function<Result(std::size_t)>& work,
             const std::function<void(std::size_t, const Result&)>& take);

}  // namespace fleetwright
