#pragma once

namespace fleetwright {

/// How the program runs. Players start it as it stands.
enum class Run {
    Whole,         ///< until the player closes it
    UntilPainted,  ///< for measurements: nothing that waits on purpose, and the main window's first
                   ///< paint is the end
};

/// Runs the program with its windows until it ends; its exit status.
int runProgram(int argc, char** argv, Run run = Run::Whole);

}  // namespace fleetwright
