#pragma once

#include <QApplication>

namespace fleetwright {

/// The application of a program with windows; both arguments outlive it. Where no display answers,
/// it says so on standard error, in one line, and ends the process with 1.
QApplication windowApplication(int& argc, char** argv);

}  // namespace fleetwright
