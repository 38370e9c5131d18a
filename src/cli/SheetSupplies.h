#pragma once

#include "DrawingPack.h"
#include "DrawnPictureFiles.h"
#include "Options.h"
#include "SSDMaps.h"
#include "ToolPictures.h"
#include "drawnSheet.h"

#include <cstddef>

namespace fleetwright {

/// All that commands draw sheets with.
class SheetSupplies {
public:
    /// What sheets are made of.
    enum class Kind { Lines, Pixels };

    /// For so many sheets of this kind. Maps that cannot be used are named on standard error, and
    /// `status` becomes SomeRefused. Throws FileError if the pictures have not been unpacked.
    SheetSupplies(const Options& options, std::size_t sheets, Kind kind, int& status);
    SheetSupplies(const SheetSupplies&) = delete;
    SheetSupplies& operator=(const SheetSupplies&) = delete;
    ~SheetSupplies() = default;

private:
    SheetTools toolsFor(const Options& options, std::size_t sheets, Kind kind);

    ToolPictures m_pictures;
    DrawingPack m_drawings;
    DrawnPictureFiles m_drawnPictures;
    LoadedMaps m_maps;

public:
    const SheetTools tools;
};

}  // namespace fleetwright
