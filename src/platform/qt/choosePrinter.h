#pragma once

#include <string>

class QPrinter;

namespace fleetwright {

/// Names the document that is to be printed, for queues of printers and captions of windows.
void setTitle(QPrinter& printer, const std::string& title);

/// Lets the user choose a printer, and how many copies. A document of this title is to be printed;
/// if that goes into a file, it is called so. False if it was cancelled.
bool choosePrinter(QPrinter& printer, const std::string& title);

}  // namespace fleetwright
