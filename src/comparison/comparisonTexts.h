#pragma once

// Comparisons as texts. What stands in them from outside only shows, in one line.

#include "CatalogueChanges.h"
#include "compareShips.h"

#include <span>
#include <string>
#include <vector>

namespace fleetwright {

/// The letter of a column: "A" to "Z", then "AA" and so on.
std::string columnName(std::size_t ship);

/// A table of what was compared, with a column for each ship. In front of a line that differs is an
/// asterisk. For two ships the last column says by how much; of more, what differs from the first
/// one has an asterisk behind it. `names` says by which file each ship goes.
std::string tableOf(std::span<const std::string> names, std::span<const ComparedLine> lines);

/// What is gone from a catalogue and what is new in it, a line each; nothing if neither is.
std::string textOf(const CatalogueChanges& changes);

/// What of a ship is other, a line each: what was, what is, and what that means.
std::string impactText(std::span<const ComparedLine> changes, const CatalogueChanges& catalogue);

}  // namespace fleetwright
