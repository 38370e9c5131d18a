#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace fleetwright {

struct RecoveryListing;

// The steps of designs put aside. No design has to wait for its steps: where something fails here,
// they are lost, and nothing else.

/// Where the steps of a design are: beside it, under its name and with its mark.
std::filesystem::path stepsBeside(const std::filesystem::path& design);

/// Those steps; empty if there are none.
std::string stepsOfDesign(const std::filesystem::path& design);

/// Whether steps are as a run of the program has written them: the first line ends in the
/// fingerprint of what is behind it.
bool areStepsWhole(std::string_view steps);

/// Steps as a run writes them: a first line of this title and that fingerprint, and lines.
std::string sealedSteps(std::string_view title, const std::string& lines);
/// The lines of such steps, with this title; nothing if they are others or not whole.
std::optional<std::string_view> linesOfSteps(std::string_view title, std::string_view steps);

/// Writes steps beside a design, but not over what somebody else has put there. Whether they are
/// there.
bool writeSteps(const std::filesystem::path& design, const std::string& steps);

/// Takes the steps of a design away that is gone, if a run has written them.
void removeSteps(const std::filesystem::path& design);

/// Brings steps that a kill has parted from their design back to it, and takes away those of which
/// the design is gone. Those of running runs, by their marks, stay.
void joinSteps(const RecoveryListing& listing, const std::set<std::string>& running);

}  // namespace fleetwright
