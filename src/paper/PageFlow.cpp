#include "PageFlow.h"

#include "FreeRoom.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace fleetwright {

namespace {

struct Mover {
    double dx;
    double dy;

    void operator()(PageText& text) const {
        text.x += dx;
        text.y += dy;
    }
    void operator()(PageLine& line) const {
        line.x1 += dx;
        line.x2 += dx;
        line.y1 += dy;
        line.y2 += dy;
    }
    void operator()(PageRectangle& rectangle) const { move(rectangle.place); }
    void operator()(PagePicture& picture) const {
        move(picture.place);
        move(picture.clip);
    }
    void move(Box& box) const {
        box.x += dx;
        box.y += dy;
    }
};

}  // namespace

void appendBlocks(std::vector<PageBlock>& blocks, std::vector<PageBlock>&& more) {
    std::move(more.begin(), more.end(), std::back_inserter(blocks));
}

void putBlock(Page& page, PageBlock block, double x, double y) {
    for (PageItem& item : block.items) {
        std::visit(Mover{x, y}, item);
        page.items.push_back(std::move(item));
    }
}

std::vector<PageBlock> partsOf(PageBlock block, double height) {
    std::vector<PageBlock> parts;
    if (block.height <= height) {
        parts.push_back(std::move(block));
        return parts;
    }
    PageBlock part;
    double top = 0;
    const auto endAt = [&](double bottom) {
        Page moved;
        putBlock(moved, std::exchange(part, {}), 0, -top);
        parts.push_back({.height = bottom - top, .items = std::move(moved.items)});
        top = bottom;
    };
    for (PageItem& item : block.items) {
        const Box box = boxOf(item);
        const bool isRule = box.height == 0;  // it ends what is above it
        if (!isRule && box.y + box.height - top > height && !part.items.empty()) {
            endAt(box.y);
        }
        part.items.push_back(std::move(item));
    }
    endAt(block.height);
    return parts;
}

/// The first block, of those from one on, that finds no room in a column of this height.
std::size_t PageFlow::endOfColumn(std::size_t first, double columnHeight) const {
    double y = 0;
    std::size_t next = first;
    while (next < m_blocks.size()) {
        std::size_t end = next;  // of what stays together
        double height = m_blocks[end].height;
        while (m_blocks[end].staysWithNext && end + 1 < m_blocks.size()) {
            height += m_blocks[++end].height;
        }
        if (y + height > columnHeight + lengthTolerance) {
            break;
        }
        for (; next <= end; ++next) {
            y += m_blocks[next].height;
        }
    }
    return next;
}

double PageFlow::height() const {
    return std::accumulate(
        m_blocks.begin() + std::ptrdiff_t(m_next), m_blocks.end(), 0.0,
        [](double height, const PageBlock& block) { return height + block.height; });
}

bool PageFlow::fitsInto(const std::vector<Box>& columns) const {
    std::size_t next = m_next;
    for (const Box& column : columns) {
        next = endOfColumn(next, column.height);
    }
    return next == m_blocks.size();
}

void PageFlow::fill(const std::vector<Box>& columns, Page& page) {
    for (const Box& column : columns) {
        const std::size_t end = endOfColumn(m_next, column.height);
        for (double y = 0; m_next < end; ++m_next) {
            const double height = m_blocks[m_next].height;
            putBlock(page, std::move(m_blocks[m_next]), column.x, column.y + y);
            y += height;
        }
    }
}

void PageFlow::force(const Box& column, Page& page) {
    putBlock(page, std::move(m_blocks[m_next++]), column.x, column.y);
}

double PageFlow::balancedHeight(const std::vector<Box>& columns) const {
    if (columns.empty()) {
        return 0;
    }
    const double own = columns.front().height;
    std::vector<Box> lower = columns;
    // All of it fits into no lower ones.
    const double least = height() / static_cast<double>(columns.size()) - 1;
    for (int height = std::max(static_cast<int>(std::min(least, own)), 1); height < own; ++height) {
        for (Box& column : lower) {
            column.height = height;
        }
        if (fitsInto(lower)) {
            return height;
        }
    }
    return own;
}

std::vector<PageBlock> PageFlow::takeRest() {
    std::vector<PageBlock> rest(std::make_move_iterator(m_blocks.begin() + std::ptrdiff_t(m_next)),
                                std::make_move_iterator(m_blocks.end()));
    m_blocks.clear();
    m_next = 0;
    return rest;
}

}  // namespace fleetwright
