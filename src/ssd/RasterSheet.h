#pragma once

#include "PixelSheet.h"

#include <functional>

namespace fleetwright {

/// A sheet on a raster that stands elsewhere: without a border, 15 twips to the pixel, white where
/// it grows, printed on in the font of `SheetFont`. Texts are UTF-8.
class RasterSheet : public PixelSheet {
public:
    /// `refresh` is called when what is drawn so far is to be shown. The raster outlives the sheet.
    explicit RasterSheet(Raster& raster, std::function<void()> refresh = {})
        : m_raster(raster), m_refresh(std::move(refresh)) {}

    void setPicture(const Raster& picture) override { m_raster = picture; }
    int scaleWidth() const override { return m_raster.width(); }
    int scaleHeight() const override { return m_raster.height(); }
    void paint(const Raster& picture, int x, int y) override;
    void fill(Pen from, Pen to, std::uint32_t colour) override;
    std::uint32_t pixel(int x, int y) const override;
    void refresh() override;

protected:
    void setHeight(int pixels) override { m_raster.setHeight(pixels); }
    void putText(std::string_view text, Pen pen) override;

private:
    bool isInside(int x, int y) const {
        return x >= 0 && x < m_raster.width() && y >= 0 && y < m_raster.height();
    }
    int printCharacter(char32_t character, Pen pen);

    Raster& m_raster;
    std::function<void()> m_refresh;
};

}  // namespace fleetwright
