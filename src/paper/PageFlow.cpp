#include "PageFlow.h"

#include <algorithm>
#include <iterator>

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

void putBlock(Page& page, const PageBlock& block, double x, double y) {
    for (const PageItem& item : block.items) {
        page.items.push_back(item);
        std::visit(Mover{x, y}, page.items.back());
    }
}

/// Fills a column, only in thought if there is no page; the first block that found no room.
std::size_t PageFlow::fillColumn(std::size_t first, const Box& column, Page* page) const {
    double y = 0;
    std::size_t next = first;
    while (next < m_blocks.size()) {
        std::size_t end = next;  // of what stays together
        double height = m_blocks[end].height;
        while (m_blocks[end].staysWithNext && end + 1 < m_blocks.size()) {
            height += m_blocks[++end].height;
        }
        if (y + height > column.height + lengthTolerance) {
            break;
        }
        for (; next <= end; ++next) {
            if (page != nullptr) {
                putBlock(*page, m_blocks[next], column.x, column.y + y);
            }
            y += m_blocks[next].height;
        }
    }
    return next;
}

bool PageFlow::fitsInto(const std::vector<Box>& columns) const {
    std::size_t next = m_next;
    for (const Box& column : columns) {
        next = fillColumn(next, column, nullptr);
    }
    return next == m_blocks.size();
}

void PageFlow::fill(const std::vector<Box>& columns, Page& page) {
    for (const Box& column : columns) {
        m_next = fillColumn(m_next, column, &page);
    }
}

void PageFlow::force(const Box& column, Page& page) {
    putBlock(page, m_blocks[m_next++], column.x, column.y);
}

double PageFlow::balancedHeight(const std::vector<Box>& columns) const {
    const double own = columns.empty() ? 0 : columns.front().height;
    for (int height = 1; height < own; ++height) {
        std::vector<Box> lower = columns;
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
