#pragma once

#include "Options.h"
#include "ShipClass.h"

#include <functional>
#include <string>

namespace fleetwright {

class ShipOnScreen;

/// Exit statuses of the tool.
enum ExitStatus : int { Done = 0, SomeRefused = 1, WrongUsage = 2 };

// The commands. Each prints its results to standard output, what it refuses to standard error,
// and returns an ExitStatus. A catalogue that cannot be read is thrown as FileError.
int runReport(const Options& options);
int runFigures(const Options& options);
int runExplain(const Options& options);
int runSave(const Options& options);
int runSheet(const Options& options);
int runEval(const Options& options);
int runMaps(const Options& options);
int runScan(const Options& options);
int runCheck(const Options& options);
int runUnpack(const Options& options);
int runRecovered(const Options& options);

/// Where the lines of a ship file go that the ship did not take.
enum class RefusedLines { InOutput, AsComplaints };

/// Loads each ship of the command line and prints what `work` makes of it, in their order and
/// several at a time. An Error of `work` becomes a complaint. `taken`, if there is one, hears in
/// their order of all ships that are done with.
int forEachShip(const Options& options, RefusedLines refusedLines,
                const std::function<std::string(std::size_t index, ShipOnScreen&)>& work,
                const std::function<void(std::size_t index)>& taken = {});

/// One ship's JSON object, without a line end.
std::string figuresOf(const std::string& file, ShipClass& ship);

}  // namespace fleetwright
