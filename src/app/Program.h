#pragma once

#include <functional>

namespace fleetwright {

/// Runs the program with its windows until it ends; its exit status. For measurements it is told
/// what to do as soon as the main window is painted: it waits for nothing on purpose then, and ends
/// behind that.
int runProgram(int argc, char** argv, const std::function<void()>& painted = {});

}  // namespace fleetwright
