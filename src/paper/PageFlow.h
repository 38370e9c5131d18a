#pragma once

// Blocks that stand below each other in columns. All measures are in millimetres.

#include "PageDocument.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace fleetwright {

/// What sums of lengths may be off, in millimetres.
inline constexpr double lengthTolerance = 1e-6;

/// Something that is not parted: a line, a row of the legend. Its items lie as if its upper left
/// corner were that of the paper.
struct PageBlock {
    double height = 0;
    std::vector<PageItem> items;
    bool staysWithNext = false;  ///< as a heading does
};

/// Adds blocks behind others.
void appendBlocks(std::vector<PageBlock>& blocks, std::vector<PageBlock>&& more);

/// Puts a block on a page, its upper left corner here.
void putBlock(Page& page, PageBlock block, double x, double y);

/// Parts of a block, parted between its lines: none is higher than this, unless a line is.
std::vector<PageBlock> partsOf(PageBlock block, double height);

/// Blocks on their way to their columns, in their order.
class PageFlow {
public:
    explicit PageFlow(std::vector<PageBlock> blocks) : m_blocks(std::move(blocks)) {}

    bool isDone() const { return m_next == m_blocks.size(); }
    /// Of all that is left, below each other.
    double height() const;
    /// Whether columns have room for all that is left.
    bool fitsInto(const std::vector<Box>& columns) const;
    /// Fills columns with what fits.
    void fill(const std::vector<Box>& columns, Page& page);
    /// Puts the next block at the top of a column, though it is too high for that.
    void force(const Box& column, Page& page);
    /// The least height of these columns, up to their own, at which all that is left fits; if it
    /// does not, their own. They are equally high.
    double balancedHeight(const std::vector<Box>& columns) const;
    /// Takes what is left.
    std::vector<PageBlock> takeRest();

private:
    std::size_t endOfColumn(std::size_t first, double columnHeight) const;

    std::vector<PageBlock> m_blocks;
    std::size_t m_next = 0;
};

}  // namespace fleetwright
