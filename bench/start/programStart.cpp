// The delivered program, from its start until its main window is painted.

#include "Program.h"

int main(int argc, char** argv) {
    return fleetwright::runProgram(argc, argv, fleetwright::Run::UntilPainted);
}
