#include "FreeRoom.h"

#include "pageTexts.h"

#include <algorithm>
#include <cmath>
#include <variant>

namespace fleetwright {

namespace {

struct Covered {
    Box operator()(const PageText& text) const {
        // From accents on capitals to the lower ends of letters.
        constexpr double above = 0.96, height = 1.21;
        const double width = textWidth(text.text, text.size, text.font);
        const double before = text.anchor == PageText::Anchor::Start    ? 0
                              : text.anchor == PageText::Anchor::Middle ? width / 2
                                                                        : width;
        return {text.x - before, text.y - above * text.size, width, height * text.size};
    }
    Box operator()(const PageLine& line) const {
        return {std::min(line.x1, line.x2), std::min(line.y1, line.y2), std::abs(line.x2 - line.x1),
                std::abs(line.y2 - line.y1)};
    }
    Box operator()(const PageRectangle& rectangle) const { return rectangle.place; }
    Box operator()(const PagePicture& picture) const { return picture.clip; }
};

}  // namespace

Box boxOf(const PageItem& item) {
    return std::visit(Covered(), item);
}

bool overlap(const Box& a, const Box& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height &&
           b.y < a.y + a.height;
}

std::optional<Box> FreeRoom::lowestAt(double x, double width, double height) const {
    Box place = {x, m_room.y + m_room.height - height, width, height};
    while (place.y >= m_room.y) {
        const auto taken =
            std::ranges::find_if(m_taken, [&](const Box& box) { return overlap(place, box); });
        if (taken == m_taken.end()) {
            return place;
        }
        place.y = taken->y - height;
    }
    return std::nullopt;
}

std::optional<Box> FreeRoom::find(double width, double height) const {
    constexpr double step = 2;
    const double right = m_room.x + m_room.width - width;
    if (right < m_room.x) {
        return std::nullopt;
    }
    std::optional<Box> found = lowestAt(right, width, height);
    for (double x = m_room.x; x < right && !found; x += step) {
        found = lowestAt(x, width, height);
    }
    return found;
}

}  // namespace fleetwright
