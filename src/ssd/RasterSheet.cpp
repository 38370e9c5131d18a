#include "RasterSheet.h"

#include "SheetFont.h"
#include "text.h"

#include <algorithm>

namespace fleetwright {

void RasterSheet::paint(const Raster& picture, int x, int y) {
    const int left = std::max(0, -x);
    const int right = std::min(picture.width(), m_raster.width() - x);
    const int bottom = std::min(picture.height(), m_raster.height() - y);
    for (int row = std::max(0, -y); row < bottom && left < right; ++row) {
        std::copy(picture.row(row).begin() + left, picture.row(row).begin() + right,
                  m_raster.row(y + row).begin() + x + left);
    }
}

void RasterSheet::fill(Pen from, Pen to, std::uint32_t colour) {
    const int left = std::max(from.x, 0);
    const int right = std::min(to.x, m_raster.width());
    const int bottom = std::min(to.y, m_raster.height());
    for (int y = std::max(from.y, 0); y < bottom && left < right; ++y) {
        const auto row = m_raster.row(y);
        std::fill(row.begin() + left, row.begin() + right, colour);
    }
}

void RasterSheet::putText(std::string_view text, Pen pen) {
    while (!text.empty()) {
        if (text.front() == lineEnd) {
            pen = {0, pen.y + Glyph::height};
        } else {
            pen.x += printCharacter(codePoint(text), pen);
        }
        text.remove_prefix(characterLength(text));
    }
}

/// Prints one character; how far the pen moves on.
int RasterSheet::printCharacter(char32_t character, Pen pen) {
    const Glyph glyph = glyphOf(character);
    // Far beyond the edge nothing shows, and the pen must not run out of its range.
    if (pen.x > m_raster.width() + glyph.width) {
        return 0;
    }
    for (int y = 0; y < Glyph::height; ++y) {
        for (int x = 0; x < glyph.width; ++x) {
            const int column = pen.x + glyph.left + x;
            if (glyph.hasInk(x, y) && isInside(column, pen.y + y)) {
                m_raster.pixel(column, pen.y + y) = black;
            }
        }
    }
    return glyph.advance;
}

std::uint32_t RasterSheet::pixel(int x, int y) const {
    return isInside(x, y) ? m_raster.pixel(x, y) : white;
}

void RasterSheet::refresh() {
    if (m_refresh) {
        m_refresh();
    }
}

}  // namespace fleetwright
