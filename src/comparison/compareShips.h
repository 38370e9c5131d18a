#pragma once

#include "ShipProfile.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// One thing about several ships: what each of them has.
struct ComparedLine {
    enum class About { Figure, Fire, System };

    /// What one ship has.
    struct Cell {
        std::string text;  ///< as it is shown
        /// Of a figure its number, if it has one; of a direction its weapons and their cost; of a
        /// system its pieces, their mass and their cost.
        std::vector<std::int64_t> numbers = {};

        friend bool operator==(const Cell&, const Cell&) = default;
    };

    About about = About::Figure;
    std::string key;          ///< of a figure that by which `figures` prints it, of others a name
    std::string title;        ///< what people call it
    bool isAmount = true;     ///< whether the numbers can be subtracted
    std::vector<Cell> cells;  ///< one for each ship

    /// Whether a ship has something else than the first one.
    bool differs(std::size_t ship) const { return cells[ship] != cells.front(); }
    bool differs() const;
    /// By how much it is other than with the first one, as "+3" or "-1, mass -2, cost -6"; nothing
    /// if it is the same, or no amount.
    std::string difference(std::size_t ship) const;
};

/// All that can be said of these ships, of which there is at least one: their figures, what their
/// weapons cover, and their systems, those that any of them has.
std::vector<ComparedLine> compareShips(std::span<const ShipProfile> ships);

/// What of a ship is other with another catalogue: those lines that differ.
std::vector<ComparedLine> impactOn(const ShipProfile& before, const ShipProfile& after);

/// How many lines differ, in a sentence of one line.
std::string differencesIn(std::span<const ComparedLine> lines);

}  // namespace fleetwright
