#pragma once

#include "PixelSheet.h"
#include "SheetRecord.h"

#include <utility>

namespace fleetwright {

/// A sheet that writes down what is put on it, and has no pixels. Its measures are those of
/// `RasterSheet`, and so what fails there fails here.
class RecordingSheet : public PixelSheet {
public:
    /// `drawings` outlive the sheet.
    explicit RecordingSheet(const Drawings& drawings) : m_drawings(drawings) {}

    /// Begins a new record, on this outline.
    void setPicture(const Raster& picture) override;
    int scaleWidth() const override { return m_record.outline.width; }
    int scaleHeight() const override { return m_height; }
    void paint(const Raster& picture, int x, int y) override;
    void paintPiece(const Raster& picture, int x, int y, std::string_view system) override;
    /// Nothing: a sheet is white where it grows.
    void fill(Pen, Pen, std::uint32_t) override {}
    /// White. Where the text ends is of no meaning to a record.
    std::uint32_t pixel(int, int) const override { return white; }
    void refresh() override {}

    const SheetRecord& record() const { return m_record; }
    /// The record, which the sheet gives away.
    SheetRecord takeRecord() { return std::move(m_record); }

protected:
    void setHeight(int pixels) override { m_height = pixels; }
    void putText(std::string_view text, Pen) override { m_record.text += text; }

private:
    SheetRecord::Paste pasteOf(const Raster& picture, int x, int y);
    std::shared_ptr<const Raster> kept(const Raster& picture);

    const Drawings& m_drawings;
    SheetRecord m_record;
    int m_height = 0;
};

}  // namespace fleetwright
