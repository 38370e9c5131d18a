#include "terminal.h"

#include <unistd.h>

namespace fleetwright {

bool isTerminal(std::FILE* stream) {
    return isatty(fileno(stream)) != 0;
}

std::vector<std::string> commandLine(int argc, const char* const* argv) {
    return {argv, argv + argc};
}

}  // namespace fleetwright
