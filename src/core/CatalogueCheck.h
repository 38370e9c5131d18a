#pragma once

#include "CatalogueFile.h"
#include "Fault.h"

#include <vector>

namespace fleetwright {

/// What a check of a catalogue is for.
enum class CatalogueCheck {
    All,    ///< everything that its author may not have meant
    Start,  ///< only what leaves the tree of systems or a price in pieces
};

/// What is wrong with a catalogue, by line; faults of the catalogue as a whole
/// come last.
std::vector<Fault> checkCatalogue(const CatalogueText& catalogue,
                                  CatalogueCheck purpose = CatalogueCheck::All);

}  // namespace fleetwright
