#pragma once

#include "Fault.h"

#include <string_view>
#include <vector>

namespace fleetwright {

/// Everything that is wrong with the text of a catalogue file, by line; faults of the catalogue as
/// a whole come last.
std::vector<Fault> checkCatalogue(std::string_view text);

}  // namespace fleetwright
