#pragma once

#include "testWindow.h"

#include <map>
#include <string>

namespace fleetwright {

/// What the screen may show that is not, or no longer, so: a refresh ends it.
struct Stale {
    bool isNodePreview = false;                   ///< another node was selected, or all were closed
    bool isRowPreview = false;                    ///< another row was selected
    std::map<const Control*, std::string> typed;  ///< the last text that the user has typed
};

/// What does not agree between the ship, the window that shows it, its file and what was put aside,
/// with the window at rest; a line for each. Takes back from `stale` what has been refreshed.
std::string screenFaults(TestWindow& test, Stale& stale);

}  // namespace fleetwright
