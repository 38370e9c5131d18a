#pragma once

// The keys of a fleet file: a table of those in front of the ships, and one of those of a ship.

#include "Fault.h"
#include "Fleet.h"
#include "fleetLines.h"

#include <cstddef>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

inline constexpr std::string_view pointsLimitKey = "points limit", limitKey = "limit";

/// A key of a section, `Fleet` or `FleetShip`. Files have them in the order of their table.
template <typename Section>
struct KeyRow {
    std::string_view key;
    bool isList = false;  ///< whether there can be several lines with it
    /// Takes the value of a line, the first one with this key or a further one. Throws Error if it
    /// means nothing.
    void (*take)(Section& section, const std::string& value, bool isFirst);
    /// The values of all lines with this key; none where that means the same.
    std::vector<std::string> (*values)(const Section& section);
};

template <typename Section>
using KeyRows = std::span<const KeyRow<Section>>;

KeyRows<Fleet> headKeys();
/// The first one begins a ship.
KeyRows<FleetShip> shipKeys();

/// A line of a section and the key that it counts for.
struct KeyLine {
    static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

    FleetLine cut;
    std::size_t row = none;  ///< of the table; none for a line that means nothing
    bool isFaulty = false;   ///< it counts for nothing, but is about what the key is about
    int number = 0;          ///< in the file, from 1 on
};

/// Reads the lines of a section. Adds to `faults` what is wrong with them.
template <typename Section>
std::vector<KeyLine> readLines(KeyRows<Section> rows, std::string_view text, Section& section,
                               int firstLine, std::vector<Fault>& faults);

}  // namespace fleetwright
