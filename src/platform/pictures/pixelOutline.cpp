#include "pixelOutline.h"

#include "fontTables.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

constexpr int ascent = 14;  // rows above the base line

/// Pixels of a picture, from the upper left corner.
struct PixelBox {
    int left, top, right, bottom;
};

/// The boxes of rows of black pixels; equal ones below each other are one.
std::vector<PixelBox> boxesOf(const Glyph& glyph) {
    std::vector<PixelBox> boxes;
    for (int y = 0; y < Glyph::height; ++y) {
        for (int x = 0; x < glyph.width; ++x) {
            if (!glyph.hasInk(x, y)) {
                continue;
            }
            const int left = x;
            while (x < glyph.width && glyph.hasInk(x, y)) {
                ++x;
            }
            const auto above = std::ranges::find_if(boxes, [&](const PixelBox& box) {
                return box.left == left && box.right == x && box.bottom == y;
            });
            if (above != boxes.end()) {
                ++above->bottom;
            } else {
                boxes.push_back({left, y, x, y + 1});
            }
        }
    }
    return boxes;
}

/// The corners of contours, one coordinate of them, as steps from one to the next.
class Steps {
public:
    Steps(std::uint8_t isShort, std::uint8_t isPositiveOrSame)
        : m_isShort(isShort), m_isPositiveOrSame(isPositiveOrSame) {}

    /// What the flags of the next corner say of this coordinate. No step is longer than 255 units.
    std::uint8_t add(int place) {
        const int step = place - std::exchange(m_last, place);
        if (step == 0) {
            return m_isPositiveOrSame;
        }
        bytes += static_cast<char>(std::abs(step));
        return step > 0 ? m_isShort | m_isPositiveOrSame : m_isShort;
    }

    std::string bytes;

private:
    std::uint8_t m_isShort;
    std::uint8_t m_isPositiveOrSame;
    int m_last = 0;
};

void addHalf(std::string& bytes, int number) {
    addFontNumber(bytes, static_cast<std::uint32_t>(number), 2);
}

}  // namespace

std::string pixelOutline(const Glyph& glyph) {
    const std::vector<PixelBox> boxes = boxesOf(glyph);
    if (boxes.empty()) {
        return {};
    }
    const auto x = [&](int pixel) { return (glyph.left + pixel) * outlinePixel; };
    const auto y = [](int row) { return (ascent - row) * outlinePixel; };
    PixelBox all = boxes.front();
    std::string ends, flags;
    Steps acrossSteps(0x02, 0x10), upSteps(0x04, 0x20);
    for (const PixelBox& box : boxes) {
        all = {std::min(all.left, box.left), std::min(all.top, box.top),
               std::max(all.right, box.right), std::max(all.bottom, box.bottom)};
        const std::pair<int, int> corners[] = {{box.left, box.top},
                                               {box.right, box.top},
                                               {box.right, box.bottom},
                                               {box.left, box.bottom}};
        for (const auto& [column, row] : corners) {
            constexpr int isOnCurve = 0x01;
            flags +=
                static_cast<char>(isOnCurve | acrossSteps.add(x(column)) | upSteps.add(y(row)));
        }
        addHalf(ends, static_cast<int>(flags.size()) - 1);
    }
    std::string outline;
    for (const int number :
         {static_cast<int>(boxes.size()), x(all.left), y(all.bottom), x(all.right), y(all.top)}) {
        addHalf(outline, number);
    }
    addHalf(ends, 0);  // hints
    return outline + ends + flags + acrossSteps.bytes + upSteps.bytes;
}

}  // namespace fleetwright
