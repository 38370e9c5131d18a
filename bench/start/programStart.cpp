// The delivered program, from its start until its main window is painted.

#include "Program.h"

#include <cstdlib>

int main(int argc, char** argv) {
    return fleetwright::runProgram(argc, argv, [] { std::_Exit(0); });
}
