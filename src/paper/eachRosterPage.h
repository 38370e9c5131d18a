#pragma once

#include "FleetSum.h"
#include "PageDocument.h"

namespace fleetwright {

/// The least width of a paper that the columns have room on, in millimetres.
inline constexpr double leastRosterWidth = 150;

/// A fleet on paper, page by page: its ships with their figures, names and notes, what they come
/// to, and what is left of its limits. There is a row for each of its ships.
void eachRosterPage(const Fleet& fleet, const FleetRows& rows, const PageSize& paper,
                    const PageTaker& take);

}  // namespace fleetwright
