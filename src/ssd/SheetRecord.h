#pragma once

#include "Drawing.h"

#include <memory>
#include <string>
#include <vector>

namespace fleetwright {

class Raster;

/// What `drawSSD` has put on a sheet.
struct SheetRecord {
    /// A picture: its drawing if it has one, else its pixels.
    struct Picture {
        std::shared_ptr<const Drawing> drawing;
        std::shared_ptr<const Raster> raster;
    };
    /// A picture with its upper left corner at this pixel of the sheet. What lies outside the
    /// outline does not show.
    struct Paste {
        Picture picture;
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
        std::string system;  ///< whose piece it is, by its name on the sheet; or empty
    };

    Paste outline;
    std::vector<Paste> pastes;  ///< in their order; later ones cover earlier ones
    std::string text;           ///< the block below the outline; lines end in CR
};

}  // namespace fleetwright
