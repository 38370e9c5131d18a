#include "PixelSheet.h"

#include "Error.h"
#include "SheetFont.h"

#include <algorithm>
#include <cstdint>

namespace fleetwright {

void PixelSheet::setControlHeight(int twips) {
    // A ship can list its systems by the ten thousand. Nobody prints that.
    constexpr std::int64_t mostPixels = std::int64_t{64} * 1024 * 1024;
    const int height = std::max(twips / twipsToThePixel, 0);
    if (std::int64_t{scaleWidth()} * height > mostPixels) {
        throw Error("the sheet is too large");
    }
    setHeight(height);
}

Pen PixelSheet::print(std::string_view text, Pen pen) {
    putText(text, pen);
    return {0, pen.y + textHeight(text)};
}

int PixelSheet::textHeight(std::string_view text) const {
    auto lines = std::count(text.begin(), text.end(), lineEnd);
    if (!text.empty() && text.back() != lineEnd) {
        ++lines;
    }
    return static_cast<int>(lines) * Glyph::height;
}

}  // namespace fleetwright
