#pragma once

#include "RecoveryName.h"
#include "ShipDesign.h"
#include "fleetName.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace fleetwright {

// How files are named in a folder of designs put aside.
inline constexpr const char* recoveryExtension = shipExtension;
inline constexpr const char* recoveryFleet = fleetExtension;  ///< in place of that, of a fleet
inline constexpr const char* recoverySteps = ".steps";  ///< in place of that, of a design's steps
inline constexpr const char* recoveryLock = ".lock";    ///< behind the mark of a run
inline constexpr const char* recoveryRecord = ".record-";  ///< in front of it
inline constexpr char beforeRecoveryMark = '~';            ///< between ".shp" or ".fleet" and it

/// Whether there is anything of this name, be it a link to nothing.
bool isInFolder(const std::filesystem::path& file);

/// A design that was put aside.
struct RecoveryDesign {
    /// The one in a file, if its name is that of a design.
    static std::optional<RecoveryDesign> in(const std::filesystem::path& file);

    std::filesystem::path file;
    std::string recordName;  ///< that of the file without ".shp" and mark; records know it by that
    std::string
        mark;  ///< of the run that has it at work, or had; empty if it was put aside for good
    std::string name;           ///< the record's, or that of the whole file where two are the same
    RecoveryName about;         ///< what that says
    bool isLeftBehind = false;  ///< by a run that has crashed, and the user does not know it
};

/// Whether a crash has left any of these behind.
bool isAnyLeftBehind(const std::vector<RecoveryDesign>& designs);

/// Brings the newest to the front, and gives each a name of its own.
void sortNewestFirst(std::vector<RecoveryDesign>& designs);

/// What is in a folder of designs put aside, in no order, by one look at it.
struct RecoveryListing {
    /// A folder that is not there is empty. Throws FileError if it cannot be read.
    explicit RecoveryListing(const std::filesystem::path& folder);

    void take(const std::filesystem::path& file);
    /// All designs, as records know them.
    std::set<std::string> recordNames() const;

    std::vector<RecoveryDesign> designs;
    std::vector<std::filesystem::path> locks, records, leftOvers, steps;
    std::uint64_t highest = 0;  ///< of the designs' numbers
};

}  // namespace fleetwright
