#pragma once

#include "CatalogueFile.h"
#include "ShipState.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace fleetwright {

/// The design as the window holds it at one moment, to go back to: the ship, and what besides it
/// the window keeps.
struct DesignMoment {
    ShipState ship;
    std::vector<std::size_t> rows;  ///< the systems in the list by record, in its order
    bool isAutoMassMarked = false;  ///< a load leaves the mark on for a ship without AutoMass
    std::shared_ptr<const CatalogueText> catalogue;  ///< whose records these are
};

/// Whether two moments are of the same design, wherever its file is and whatever was saved.
bool isSameDesign(const DesignMoment& one, const DesignMoment& other);

/// Whether the records of one catalogue are those of the other, which may have been read later.
bool isSameCatalogue(const std::shared_ptr<const CatalogueText>& one,
                     const std::shared_ptr<const CatalogueText>& other);

/// Whether two ships have the same file.
bool isSameFile(const ShipNames& one, const ShipNames& other);

}  // namespace fleetwright
