#pragma once

#include "CommandRow.h"
#include "SSDMaps.h"
#include "ShipClass.h"
#include "inOrder.h"

#include <filesystem>
#include <functional>
#include <span>
#include <string>

// What several commands share.

namespace fleetwright {

class ShipOnScreen;

/// Where the lines of a ship file go that the ship did not take.
enum class RefusedLines { InOutput, AsComplaints };

/// Loads each ship of the command line and prints what `work` makes of it, in their order and
/// several at a time. An Error of `work` becomes a complaint. `taken`, if there is one, hears in
/// their order of all ships that are done with. Returns an ExitStatus.
int forEachShip(const Options& options, RefusedLines refusedLines,
                const std::function<std::string(std::size_t index, ShipOnScreen&)>& work,
                const std::function<void(std::size_t index)>& taken = {});

/// The same with these ships and the catalogue that they are to have, which is to be one that is
/// read once.
int forEachShip(const Options& options, std::span<const std::string> ships,
                const CatalogueFile& catalogueFile, RefusedLines refusedLines,
                const std::function<std::string(std::size_t index, ShipOnScreen&)>& work,
                const std::function<void(std::size_t index)>& taken = {});

/// Throws Error for a word of the command line that is a fleet. Commands on whose answers to any
/// text scripts rely (report, figures, save) make a ship of it, of mass 2, instead.
void refuseFleet(const std::string& ship);

/// Works on the inputs 0 to `count` - 1, several at a time, prints their results in their order,
/// and shows how far it has come. Returns an ExitStatus.
int printInOrder(std::size_t count, const std::function<Result(std::size_t)>& work,
                 const std::function<void(std::size_t index)>& taken = {});

/// The maps of the application folder. Those that cannot be used are named on standard error, and
/// `status` becomes SomeRefused.
LoadedMaps mapsOf(const Options& options, int& status);

/// One ship's JSON object, without a line end.
std::string figuresOf(const std::string& file, ShipClass& ship);

/// The option of commands that have results for programs as well.
inline constexpr OptionRow jsonOption = {.name = "--json", .help = "As JSON, for other programs"};

/// The option of commands that write files.
inline constexpr OptionRow outOption = {
    .name = "-o",
    .value = "OUT",
    .help = "Where to write; by default sheets to SHIP.bmp here, all else to standard output",
    .check =
        [](std::string_view, const std::string& value) {
            if (value.empty()) {
                throw UsageError("-o needs a file or a folder");
            }
        },
};

/// Whether what `-o` says is a folder: an ending says that it is a file, unless there is a folder
/// of that name.
bool isOutFolder(const std::filesystem::path& out);

}  // namespace fleetwright
