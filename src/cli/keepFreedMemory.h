#pragma once

namespace fleetwright {

/// Lets the memory of one sheet serve the next, where the system's allocator would give pieces of
/// megabytes back at once and fetch them anew, page by page: that takes longer than drawing. What
/// the first sheet needs is fetched in large pages.
void keepFreedMemory();

}  // namespace fleetwright
