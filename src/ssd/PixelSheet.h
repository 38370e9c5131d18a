#pragma once

#include "Sheet.h"

namespace fleetwright {

/// The measures of a sheet without a border, with 15 twips to the pixel and printed on in the font
/// of `SheetFont`: the same for whatever becomes of what is drawn on it.
class PixelSheet : public Sheet {
public:
    static constexpr int twipsToThePixel = 15;

    int controlHeight() const override { return scaleHeight() * twipsToThePixel; }
    void setControlHeight(int twips) override;
    int twipsPerPixel() const override { return twipsToThePixel; }
    Pen print(std::string_view text, Pen pen) override;
    int textHeight(std::string_view text) const override;

protected:
    static constexpr char lineEnd = '\r';

    /// Adds white rows at the bottom, or cuts some off.
    virtual void setHeight(int pixels) = 0;
    /// Puts a text on the sheet; see `print`.
    virtual void putText(std::string_view text, Pen pen) = 0;
};

}  // namespace fleetwright
