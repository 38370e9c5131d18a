#pragma once

#include <string>

namespace fleetwright {

/// What is wrong with a file, and where.
struct Fault {
    /// Line, counted from 1; 0 where no single line is at fault.
    int line = 0;
    std::string text;

    friend bool operator==(const Fault&, const Fault&) = default;
};

}  // namespace fleetwright
