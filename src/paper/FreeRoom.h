#pragma once

#include "PageDocument.h"

#include <optional>
#include <vector>

namespace fleetwright {

/// What an item covers of its page.
Box boxOf(const PageItem& item);
/// Whether two boxes have an area in common.
inline bool overlap(const Box& a, const Box& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height &&
           b.y < a.y + a.height;
}

/// What is left of a room on a page.
class FreeRoom {
public:
    explicit FreeRoom(const Box& room) : m_room(room) {}

    /// Takes what a box covers, which may lie outside.
    void take(const Box& box) { m_taken.push_back(box); }
    /// A free place of this size: at an edge of the room if there is one, the right one first, and
    /// as low as possible.
    std::optional<Box> find(double width, double height) const;

private:
    std::optional<Box> lowestAt(double x, double width, double height) const;

    Box m_room;
    std::vector<Box> m_taken;
};

}  // namespace fleetwright
