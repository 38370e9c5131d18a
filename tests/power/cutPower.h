#pragma once

#include "Disk.h"

#include <set>
#include <string>
#include <vector>

namespace fleetwright {

/// What power cuts during an act have left.
struct Damage {
    std::size_t cuts = 0;    ///< one before each change and one behind the last
    std::size_t guilty = 0;  ///< those with faults
    std::set<std::string> faults;
    std::size_t states = 0;      ///< that a disk may show after one of them
    std::vector<Files> samples;  ///< some of these
};

/// What of the files belongs together.
struct Scope {
    std::string unit;   ///< a folder whose files count as one
    std::string shelf;  ///< a folder in which names do not count
};

/// Cuts the power at every change of an act and looks at all that a disk may then hold. The act
/// reports what it has done by making a folder "reported", and by its end. Each file has to be
/// whole, as of the last report or the next one.
Damage cutPower(const Files& before, const std::vector<Change>& changes, const Scope& scope);

}  // namespace fleetwright
