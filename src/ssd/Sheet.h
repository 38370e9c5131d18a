#pragma once

#include "Raster.h"

#include <cstdint>
#include <string_view>

namespace fleetwright {

/// Where on a sheet printing goes on, in pixels.
struct Pen {
    int x = 0;
    int y = 0;
};

/// What a sheet is drawn on: a raster in a control. Pixels have their origin at the upper left
/// corner; what would lie outside is left out. The control's size is in twips and may count a
/// border.
class Sheet {
public:
    static constexpr std::uint32_t black = 0x000000;
    static constexpr std::uint32_t white = Raster::white;

    virtual ~Sheet() = default;

    /// Makes the sheet this picture, with its size.
    virtual void setPicture(const Raster& picture) = 0;

    virtual int scaleWidth() const = 0;   ///< inner width in pixels
    virtual int scaleHeight() const = 0;  ///< inner height in pixels
    /// Outer height in twips.
    virtual int controlHeight() const = 0;
    /// Adds an empty strip at the bottom, or cuts one off; all else stays. Throws Error for a sheet
    /// that is too large.
    virtual void setControlHeight(int twips) = 0;
    virtual int twipsPerPixel() const = 0;

    /// Copies a whole picture to the sheet, its upper left corner at this pixel.
    virtual void paint(const Raster& picture, int x, int y) = 0;
    /// The same for the picture of a piece of a system, by its name on the sheet.
    virtual void paintPiece(const Raster& picture, int x, int y, std::string_view) {
        paint(picture, x, y);
    }
    /// Fills from one corner up to, but without, the row and the column of the other.
    virtual void fill(Pen from, Pen to, std::uint32_t colour) = 0;
    /// Prints black text whose lines end in CR, and leaves what shows between the letters. The
    /// first line begins at the pen, the others at x 0. Returns the start of the line below.
    virtual Pen print(std::string_view text, Pen pen) = 0;
    /// Height in pixels of a text as `print` lays it out.
    virtual int textHeight(std::string_view text) const = 0;
    /// Colour of a pixel as 0xRRGGBB; white outside the sheet.
    virtual std::uint32_t pixel(int x, int y) const = 0;

    /// Shows what is drawn so far.
    virtual void refresh() = 0;
};

}  // namespace fleetwright
