#pragma once

#include "DrawingPack.h"
#include "Options.h"
#include "SSDMaps.h"
#include "ToolPictures.h"
#include "drawnSheet.h"

#include <cstddef>

namespace fleetwright {

/// All that commands draw sheets with.
class SheetSupplies {
public:
    enum class Kind { Pdf, Other };

    /// For so many sheets, of which documents of this kind are made. Maps that cannot be used are
    /// named on standard error, and `status` becomes SomeRefused. Throws FileError if the pictures
    /// have not been unpacked.
    SheetSupplies(const Options& options, std::size_t sheets, Kind kind, int& status);
    SheetSupplies(const SheetSupplies&) = delete;
    SheetSupplies& operator=(const SheetSupplies&) = delete;
    ~SheetSupplies() = default;

    ToolPictures pictures;

private:
    DrawingPack m_drawings;
    LoadedMaps m_maps;

public:
    const SheetTools tools;
};

}  // namespace fleetwright
