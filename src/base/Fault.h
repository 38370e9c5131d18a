#pragma once

#include "text.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace fleetwright {

/// What is wrong with a file, and where.
struct Fault {
    /// Line, counted from 1; 0 where no single line is at fault.
    int line = 0;
    std::string text;

    friend bool operator==(const Fault&, const Fault&) = default;
};

/// Puts faults in the order of their lines; those of no single line come last.
template <typename Faults>
void sortByLine(Faults& faults) {
    std::stable_sort(faults.begin(), faults.end(), [](const Fault& a, const Fault& b) {
        return a.line != 0 && (b.line == 0 || a.line < b.line);
    });
}

/// A fault as one line of text: "FILE:LINE: what is wrong", or without the line where no single one
/// is at fault.
inline std::string complaint(std::string_view file, const Fault& fault) {
    const std::string line = fault.line == 0 ? "" : std::to_string(fault.line) + ":";
    return shownText(file) + ":" + line + " " + fault.text;
}

}  // namespace fleetwright
