#pragma once

#include "ShipOnScreen.h"
#include "drawnSheet.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

/// Sheets that are drawn once more when they are wanted, on the maps that fit them best: of each
/// only the code of its design is kept, so that there may be any number of them.
class SheetsOnDemand {
public:
    /// For so many sheets. The catalogue is one that is read once. What the tools refer to outlives
    /// this.
    SheetsOnDemand(std::size_t count, const SheetTools& tools, CatalogueFile catalogue);

    /// Draws the sheet of the ship on a screen, and keeps what it takes to draw it again. Any
    /// number of threads may do so for different sheets. Throws Error.
    VectorSheet draw(std::size_t index, const ShipOnScreen& screen);
    /// A sheet that was drawn, once more. Throws Error.
    std::shared_ptr<const VectorSheet> at(std::size_t index);
    /// The ship file that it carries.
    std::string shipFile(std::size_t index) const;

private:
    struct Kept {
        std::string code;
        std::shared_ptr<const VectorSheet> sheet;  ///< of a design that is too large for a code
    };
    using Drawn = std::pair<std::size_t, std::shared_ptr<const VectorSheet>>;

    const SheetTools& m_tools;
    ShipOnScreen m_screen;  // of those that are drawn once more
    std::vector<Kept> m_kept;
    std::deque<Drawn> m_last;  ///< ships of one design are mostly wanted behind each other
};

}  // namespace fleetwright
