#pragma once

#include "Raster.h"

#include <string_view>

namespace fleetwright {

/// The pictures that a sheet is pasted together from.
class SheetImages {
public:
    /// Key of the white picture that free points are covered with.
    static constexpr std::string_view blank = "BLANK";

    virtual ~SheetImages() = default;

    /// A file of the folder of pictures. Throws FileError.
    virtual Raster file(std::string_view name) = 0;
    /// The picture of a system, by its name, or `blank`. Throws Error if there is none.
    virtual const Raster& system(std::string_view name) = 0;
};

}  // namespace fleetwright
