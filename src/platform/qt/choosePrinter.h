#pragma once

#include <string>

class QPrinter;

namespace fleetwright {

/// Lets the user choose a printer, and how many copies. A document of this title is to be printed;
/// if that goes into a file, it is called so. False if it was cancelled.
bool choosePrinter(QPrinter& printer, const std::string& title);

}  // namespace fleetwright
