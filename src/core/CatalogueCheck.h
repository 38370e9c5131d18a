#pragma once

#include "Fault.h"

#include <string_view>
#include <vector>

namespace fleetwright {

/// What a check of a catalogue is for.
enum class CatalogueCheck {
    All,    ///< everything that its author may not have meant
    Start,  ///< only what leaves the tree of systems or a price in pieces
};

/// What is wrong with the text of a catalogue file, by line; faults of the catalogue as a whole
/// come last.
std::vector<Fault> checkCatalogue(std::string_view text,
                                  CatalogueCheck purpose = CatalogueCheck::All);

}  // namespace fleetwright
