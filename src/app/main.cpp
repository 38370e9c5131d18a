#include "Program.h"

int main(int argc, char** argv) {
    return fleetwright::runProgram(argc, argv);
}
