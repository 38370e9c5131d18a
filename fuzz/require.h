#pragma once

#include "text.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace fleetwright {

/// Ends the run with a find, unless what the program promises `holds`.
inline void require(bool holds, std::string_view promise) {
    if (!holds) {
        std::fprintf(stderr, "Broken promise: %.*s\n", static_cast<int>(promise.size()),
                     promise.data());
        std::abort();
    }
}

/// The same for two texts that are to be alike; shows both.
inline void requireSame(const std::string& got, const std::string& wanted,
                        std::string_view promise) {
    if (got != wanted) {
        std::fprintf(stderr, "--- got:\n%s\n--- wanted:\n%s\n---\n", got.c_str(), wanted.c_str());
    }
    require(got == wanted, promise);
}

/// Faults have words, and come in the order of the lines of a text; what concerns none comes last.
template <typename Faults>
void requireInOrder(const Faults& faults, std::string_view text) {
    LineReader reader(text);
    for (std::string_view line; reader.next(line);) {
    }
    const int lines = reader.lineNumber();
    int last = 0;
    for (const auto& fault : faults) {
        require(!fault.text.empty(), "a fault is put into words");
        require(fault.line == 0 || (fault.line >= last && fault.line <= lines),
                "faults are in the order of their lines");
        last = fault.line == 0 ? lines : fault.line;
    }
}

}  // namespace fleetwright
