#include "SheetCard.h"

#include "SheetPictures.h"
#include "scaledDrawing.h"
#include "sheetHeader.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace fleetwright {

namespace {

constexpr double columnGap = 5;
constexpr double mostSymbol = 14;  // a drawing of few pixels is not blown up beyond that

double scaleOfSymbol(double side) {
    return side / systemPictureSize;
}

double totalHeight(const std::vector<PageBlock>& blocks) {
    return std::accumulate(
        blocks.begin(), blocks.end(), 0.0,
        [](double height, const PageBlock& block) { return height + block.height; });
}

/// The lines as they stand in the head; none if they do not fit there.
std::vector<PageBlock> linesForHead(const std::vector<std::string>& lines, double width) {
    constexpr double smallest = 2.2;
    const Box room = roomInHeader(width);
    for (double size = textLineSize; room.width > 0 && size > smallest; size -= 0.05) {
        std::vector<PageBlock> blocks = lineBlocks(lines, room.width, size);
        if (totalHeight(blocks) <= room.height) {
            return blocks;
        }
    }
    return {};
}

void addRoomBelow(std::vector<PageBlock>& blocks) {
    if (!blocks.empty()) {
        constexpr double room = 3;
        blocks.back().height += room;
    }
}

}  // namespace

std::vector<Box> readingColumns(const Box& room) {
    constexpr double goodWidth = 60;
    const double count =
        std::max(std::floor((room.width + columnGap) / (goodWidth + columnGap)), 1.0);
    const double width = (room.width - (count - 1) * columnGap) / count;
    std::vector<Box> columns;
    for (double i = 0; i < count; ++i) {
        columns.push_back({room.x + i * (width + columnGap), room.y, width, room.height});
    }
    return columns;
}

SheetCard::SheetCard(const VectorSheet& sheet, const Box& room, bool isPlain)
    : m_sheet(sheet), m_room(room), m_isPlain(isPlain), m_text(sheetText(sheet.record.text)),
      m_body(room), m_ink(inkOf(sheet.record)) {
    if (!m_isPlain) {
        constexpr double roomBelowHead = 2;
        m_linesInHead = linesForHead(m_text.lines, room.width);
        m_head = sheetHeader(sheet.facts, m_linesInHead, room.width);
        const double taken = m_head.height + roomBelowHead;
        m_body.y += taken;
        m_body.height -= taken;
    }
    m_scale = scaleFor(m_ink);
}

bool SheetCard::isLegible() const {
    return m_scale >= scaleOfSymbol(leastSymbol);
}

/// The largest scale that leaves the usual room for reading; if even the least good one does not,
/// the drawing has the room for itself.
double SheetCard::scaleFor(const Box& ink) const {
    const double most = std::min(m_body.width / ink.width, m_body.height / ink.height);
    const double least = scaleOfSymbol(leastSymbol);
    if (most <= least) {
        return most;
    }
    const double start = std::min(most, scaleOfSymbol(mostSymbol));
    const double needed = m_body.width * m_body.height * (m_isPlain ? 0.08 : 0.25);
    const double step = scaleOfSymbol(0.1);
    for (double scale = start; scale >= least; scale -= step) {
        if (readingRoom(scale) >= needed) {
            return scale;
        }
    }
    return start;
}

/// The area of all columns around the drawing.
double SheetCard::readingRoom(double scale) const {
    double area = 0;
    const Columns columns = columnsAround(scale);
    for (const std::vector<Box>* part : {&columns.beside, &columns.below}) {
        for (const Box& column : *part) {
            area += column.width * column.height;
        }
    }
    return area;
}

SheetCard::Columns SheetCard::columnsAround(double scale) const {
    constexpr double leastHeight = 15;
    Columns columns;
    std::vector<Box> all = readingColumns(m_body);
    const double free = m_body.width - m_ink.width * scale;
    while (all.size() > 1 &&
           double(columns.beside.size() + 1) * (all[0].width + columnGap) <= free) {
        columns.beside.insert(columns.beside.begin(), all.back());
        all.pop_back();
    }
    const double above = m_ink.height * scale + columnGap;
    if (m_body.height - above >= leastHeight) {
        for (Box& column : all) {
            column.y += above;
            column.height -= above;
        }
        columns.below = std::move(all);
    }
    return columns;
}

std::vector<PageBlock> SheetCard::textToRead(double factor) const {
    const double width = readingColumns(m_body).front().width;
    std::vector<PageBlock> blocks;
    if (m_linesInHead.empty()) {
        appendBlocks(blocks, lineBlocks(m_text.lines, width, textLineSize));
        addRoomBelow(blocks);
    }
    appendBlocks(blocks, listBlocks(m_text, width));
    addRoomBelow(blocks);
    if (!m_isPlain) {
        appendBlocks(blocks, legendBlocks(m_sheet.facts.legend, width, factor));
    }
    return blocks;
}

/// What there is to read, in a smaller font if that saves a page.
PageFlow SheetCard::fittingText(const Columns& columns) const {
    for (const double factor : {1.0, 0.92, 0.84}) {
        PageFlow flow(textToRead(factor));
        PageFlow tried = flow;
        Page unused;
        tried.fill(columns.beside, unused);
        tried.fill(columns.below, unused);
        if (tried.isDone()) {
            return flow;
        }
    }
    return PageFlow(textToRead(1));
}

std::vector<PageBlock> SheetCard::putOn(Page& page) const {
    putBlock(page, m_head, m_room.x, m_room.y);
    Columns columns = columnsAround(m_scale);
    PageFlow flow = fittingText(columns);
    Box free = m_body;
    if (!flow.isDone() && !columns.beside.empty()) {
        flow.fill(columns.beside, page);
        free.width = columns.beside.front().x - columnGap - free.x;
    }
    if (!flow.isDone() && !columns.below.empty()) {
        const double height = flow.balancedHeight(columns.below);
        for (Box& column : columns.below) {
            column.y += column.height - height;
            column.height = height;
        }
        flow.fill(columns.below, page);
        free.height -= height + columnGap;
    }
    putDrawing(page, m_sheet.record, m_ink, free.x + (free.width - m_ink.width * m_scale) / 2,
               free.y + (free.height - m_ink.height * m_scale) / 2, m_scale);
    return flow.takeRest();
}

}  // namespace fleetwright
