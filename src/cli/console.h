#pragma once

#include <string>
#include <string_view>

namespace fleetwright {

/// Prints results. Their bytes go into a file or a pipe as they are; on a terminal nothing in them
/// does more than show.
void printResults(std::string_view text);

/// A text as one line of results: a line break in it breaks no line of a terminal.
std::string resultLine(std::string_view text);

/// Prints one line to standard error, of which nothing does more than show.
void complain(std::string_view line);

}  // namespace fleetwright
