#pragma once

// A fleet as a table for people, and as JSON for programs.

#include "FleetSum.h"

#include <optional>
#include <string>

namespace fleetwright {

/// All that there is to say of a fleet, which outlives this.
struct FleetReport {
    const Fleet& fleet;
    FleetRows rows;
    FleetSum sum = {};
    /// Whether the catalogue is another than when the fleet was written; nothing if that is not
    /// known.
    std::optional<bool> isOtherCatalogue = {};
};

/// Prints a table, and below it what is left of the limits and what has changed.
void printTable(const FleetReport& report);

/// Prints one JSON object, which docs/file-formats.md describes.
void printJson(const FleetReport& report, const std::string& file);

}  // namespace fleetwright
