#pragma once

#include "FleetSum.h"
#include "fleetFile.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace fleetwright {

/// The ships of a fleet that have to be loaded: each file, or code, once.
struct FleetFiles {
    /// Those of a fleet in this folder.
    FleetFiles(const ReadFleet& read, const std::filesystem::path& folder);

    /// What is wrong with a file, by its place in `paths`: in the line of its own, or where the
    /// fleet, in this file, names it.
    std::string complaintOf(const std::string& fleetFile, std::size_t index,
                            const Fault& fault) const;

    std::vector<std::string> paths;   ///< empty for a ship that names none
    std::vector<int> lines;           ///< of the fleet file, where each is named first
    std::vector<std::size_t> ofShip;  ///< the path of each ship of the fleet
};

/// The limits of a fleet that are broken, in the lines of its file.
std::vector<Fault> brokenLimits(const ReadFleet& read, const FleetSum& sum);

}  // namespace fleetwright
