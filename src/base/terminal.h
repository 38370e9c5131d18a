#pragma once

// The terminal that a command line tool is called from, one source a system.

#include <cstdio>
#include <string>
#include <vector>

namespace fleetwright {

/// Whether somebody looks at what is written to `stream`.
bool isTerminal(std::FILE* stream);

/// The words of the command line, with that of the program, in UTF-8. What the tool prints is UTF-8
/// from now on, byte for byte as it is written.
std::vector<std::string> commandLine(int argc, const char* const* argv);

}  // namespace fleetwright
