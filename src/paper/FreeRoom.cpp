#include "FreeRoom.h"

#include "pageTexts.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <ranges>
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

std::optional<Box> FreeRoom::lowestAt(double x, double width, double height) const {
    Box place = {x, m_room.y + m_room.height - height, width, height};
    std::vector<Box> inTheWay;
    inTheWay.reserve(m_taken.size());
    std::ranges::copy_if(m_taken, std::back_inserter(inTheWay), [&](const Box& box) {
        return x < box.x + box.width && box.x < x + width;
    });
    // Mostly they were taken from above, so that one look from the end on finds all of them.
    for (bool hasMoved = true; hasMoved && place.y >= m_room.y;) {
        hasMoved = false;
        for (const Box& box : std::views::reverse(inTheWay)) {
            if (const double above = box.y - height; above < place.y && overlap(place, box)) {
                place.y = above;
                hasMoved = true;
            }
        }
    }
    return place.y >= m_room.y ? std::optional(place) : std::nullopt;
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
