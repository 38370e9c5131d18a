#include "SheetCard.h"

#include "FreeRoom.h"
#include "KeptSheetParts.h"
#include "RoomBeside.h"
#include "SheetPictures.h"
#include "damageBoxes.h"
#include "designQr.h"
#include "putFireRose.h"
#include "scaledDrawing.h"
#include "sheetHeader.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <utility>

namespace fleetwright {

namespace {

// The side of a system's picture in a drawing that is no larger than it has to be: with the lesser
// one, the damage boxes of small ships are large enough for a pencil.
constexpr double goodSymbol = 12, mostSymbol = 14;
constexpr double wideColumn = 57, narrowColumn = 43;

constexpr double scaleOfSymbol(double side) {
    return side / systemPictureSize;
}

double totalHeight(const std::vector<PageBlock>& blocks) {
    return std::accumulate(
        blocks.begin(), blocks.end(), 0.0,
        [](double height, const PageBlock& block) { return height + block.height; });
}

/// The lines as they stand in the head; none if they do not fit there.
std::vector<PageBlock> linesForHead(const std::vector<std::string>& lines, double width) {
    constexpr double smallest = 2.2, step = 0.05;
    const Box room = roomInHeader(width);
    double size = textLineSize;
    while (room.width > 0 && size > smallest) {
        std::vector<PageBlock> blocks = lineBlocks(lines, room.width, size);
        if (totalHeight(blocks) <= room.height) {
            return blocks;
        }
        size -= step;
    }
    return {};
}

/// Adds blocks behind others, with some room between.
void appendPart(std::vector<PageBlock>& blocks, std::vector<PageBlock>&& part) {
    if (!blocks.empty() && !part.empty()) {
        constexpr double room = 3;
        blocks.back().height += room;
    }
    appendBlocks(blocks, std::move(part));
}

/// As many columns of this width as a room has, or one, which is narrower if the room is.
std::vector<Box> columnsIn(const Box& room, double width) {
    const int count = static_cast<int>((room.width + columnGap) / (width + columnGap));
    if (count < 2) {
        return {{room.x, room.y, std::min(room.width, width), room.height}};
    }
    const double pitch = (room.width - width) / (count - 1);
    std::vector<Box> columns;
    columns.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        columns.push_back({room.x + i * pitch, room.y, width, room.height});
    }
    return columns;
}

/// Makes columns no higher than their text, which stands this far down in what they were.
void takeUp(std::vector<Box>& columns, const PageFlow& flow, double down) {
    const double height = flow.balancedHeight(columns);
    for (Box& column : columns) {
        column.y += (column.height - height) * down;
        column.height = height;
    }
}

double areaOf(const std::vector<Box>& boxes) {
    return std::accumulate(boxes.begin(), boxes.end(), 0.0, [](double area, const Box& box) {
        return area + box.width * box.height;
    });
}

}  // namespace

std::vector<Box> readingColumns(const Box& room) {
    constexpr double leastForWideOnes = 2 * wideColumn + columnGap;
    return columnsIn(room, room.width < leastForWideOnes ? narrowColumn : wideColumn);
}

std::vector<Box> SheetCard::Columns::inOrder() const {
    std::vector<Box> all = beside;
    all.insert(all.end(), below.begin(), below.end());
    all.insert(all.end(), inCorners.begin(), inCorners.end());
    return all;
}

SheetCard::SheetCard(const VectorSheet& sheet, const Box& box, Room room,
                     const SheetOptions& options)
    : m_sheet(sheet), m_box(box), m_room(room), m_isPlain(options.isPlain),
      m_outlines(options.kept == nullptr ? nullptr : &options.kept->outlines),
      m_text(sheetText(sheet.record.text)), m_list(m_text),
      m_legend(m_isPlain ? std::vector<LegendRow>() : sheet.facts.legend,
               options.kept == nullptr ? nullptr : &options.kept->texts),
      m_body(box), m_ink(inkOf(sheet.record)) {
    if (!m_isPlain) {
        constexpr double roomBelowHead = 2;
        m_linesInHead = linesForHead(m_text.lines, box.width);
        m_head = sheetHeader(sheet.facts, m_linesInHead, box.width);
        const double taken = m_head.height + roomBelowHead;
        m_body.y += taken;
        m_body.height -= taken;
    }
    m_roomyScale = roomyScale();
    m_leastScale = leastScale();
}

/// That of a drawing which fills the room.
double SheetCard::largestScale() const {
    return std::min(m_body.width / m_ink.width, m_body.height / m_ink.height);
}

bool SheetCard::isGoodHere() const {
    return m_leastScale >= scaleOfSymbol(leastSymbol) &&
           fittingReadings(Silhouette(m_sheet.record, m_ink, m_outlines)).has_value();
}

/// The largest scale that leaves the usual room for reading, or else a little, in wide columns or
/// else in narrow ones. If even the least good one does not, the drawing has the room for itself.
/// In a part of a page the least that can be played with.
double SheetCard::roomyScale() const {
    const double most = largestScale();
    const bool isSmall = m_isPlain || m_room == Room::Part;
    const double least = scaleOfSymbol(isSmall ? leastSymbol : goodSymbol);
    if (most <= least || m_room == Room::Part) {
        return std::min(most, least);
    }
    const double start = std::min(most, scaleOfSymbol(mostSymbol));
    const double area = m_body.width * m_body.height;
    std::vector<double> scales;
    const double step = scaleOfSymbol(0.02);
    const int count = static_cast<int>(std::floor((start - least) / step)) + 1;
    for (int i = 0; i < count; ++i) {
        scales.push_back(start - i * step);
    }
    for (const double needed : {m_isPlain ? 0.08 * area : 0.22 * area, 0.06 * area}) {
        for (const double columnWidth : {wideColumn, narrowColumn}) {
            // The smaller the drawing, the more room is beside it.
            const auto found = std::ranges::partition_point(scales, [&](double scale) {
                const Columns columns = columnsAround(scale, columnWidth);
                return areaOf(columns.beside) + areaOf(columns.below) < needed;
            });
            if (found != scales.end()) {
                return *found;
            }
        }
    }
    return start;
}

/// A drawing on a page of its own gives away a little of its size, as far as it remains good to
/// play with, if all of its text then has a place beside it, or one in a font that is easier to
/// read.
double SheetCard::leastScale() const {
    constexpr double kept = 0.9, leastBox = 4.5, line = 1;
    if (m_isPlain || m_room == Room::Part) {
        return m_roomyScale;
    }
    const double box = std::max(damageBoxSide(m_sheet) - line, line);
    const double least = std::max(scaleOfSymbol(leastSymbol), leastBox / box);
    return std::max(m_roomyScale * kept, std::min(m_roomyScale, least));
}

SheetCard::Columns SheetCard::columnsAround(double scale, double columnWidth) const {
    constexpr double leastHeight = 15;
    Columns columns;
    std::vector<Box> all = columnsIn(m_body, columnWidth);
    const double free = m_body.width - m_ink.width * scale;
    while (all.size() > 1 && m_body.x + m_body.width - all.back().x + columnGap <= free) {
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

/// What stands above the list in the text of the drawing.
std::vector<PageBlock> SheetCard::textOfDrawing(double width, double size) const {
    constexpr std::size_t mostTogether = 12;
    std::vector<PageBlock> blocks = lineBlocks(m_text.lines, width, size);
    for (std::size_t i = 0; i + 1 < blocks.size() && blocks.size() <= mostTogether; ++i) {
        blocks[i].staysWithNext = true;
    }
    return blocks;
}

PageFlow SheetCard::textToRead(double width, double factor, BlockParts parts) const {
    const double size = textLineSize * std::min(factor, 1.0);
    std::vector<PageBlock> blocks;
    if (m_linesInHead.empty()) {
        blocks = textOfDrawing(width, size);
    }
    appendPart(blocks, m_list.blocks(width, size, m_isPlain ? "" : "ALSO ABOARD", parts));
    appendPart(blocks, m_legend.blocks(width, factor, parts));
    return PageFlow(std::move(blocks));
}

/// Wide columns are better to read, more narrow ones fit.
std::vector<SheetCard::Reading> SheetCard::readings(double factor) const {
    const double usual = readingColumns(m_body).front().width;
    std::vector<Reading> readings;
    const auto add = [&](double width) {
        readings.push_back({width, factor, textToRead(width, factor, BlockParts::Heights)});
    };
    add(usual);
    if (narrowColumn < usual) {
        add(narrowColumn);
    }
    return readings;
}

/// Where all of the text has a place beside a drawing of this size, if it has.
std::optional<SheetCard::Places> SheetCard::placesAt(double scale,
                                                     const std::vector<Reading>& readings,
                                                     const Silhouette& silhouette) const {
    for (std::size_t i = 0; i < readings.size(); ++i) {
        Columns columns = columnsAround(scale, readings[i].width);
        if (readings[i].flow.fitsInto(columns.inOrder())) {
            return Places{scale, std::move(columns), i};
        }
    }
    const RoomBeside beside(silhouette, m_ink, scale, m_body, {narrowColumn, wideColumn});
    for (std::size_t i = 0; i < readings.size(); ++i) {
        Columns columns;
        columns.inCorners = beside.columns(readings[i].width);
        if (readings[i].flow.fitsInto(columns.inOrder())) {
            return Places{scale, std::move(columns), i};
        }
    }
    return std::nullopt;
}

/// All of the text in the largest font, up to the usual one, in which it has a place beside the
/// least drawing, if there is one.
std::optional<SheetCard::Fitting> SheetCard::fittingReadings(const Silhouette& silhouette) const {
    constexpr double smallestOfPage = 0.8;
    for (const double factor : {1.0, 0.92, smallestOfPage, 0.75}) {
        if (factor < smallestOfPage && m_room == Room::Page) {
            break;
        }
        std::vector<Reading> text = readings(factor);
        if (std::optional<Places> places = placesAt(m_leastScale, text, silhouette)) {
            return Fitting{std::move(text), *std::move(places)};
        }
    }
    return std::nullopt;
}

/// The largest drawing that leaves the text a place, in a smaller font if that saves a page. What
/// is left over lets the font be larger.
SheetCard::Layout SheetCard::bestLayout(const Silhouette& silhouette) const {
    constexpr double comfortable = 1.2;  // where there is room
    const auto layout = [this](Places&& places, const std::vector<Reading>& readings) {
        const Reading& reading = readings[places.reading];
        return Layout{places.scale, std::move(places.columns),
                      textToRead(reading.width, reading.factor, BlockParts::All)};
    };
    if (std::optional<Fitting> fitting = fittingReadings(silhouette)) {
        auto& [text, best] = *fitting;
        double tooLarge = largestScale();
        double tried = tooLarge;
        while (tooLarge - best.scale > scaleOfSymbol(0.1)) {
            if (std::optional<Places> larger = placesAt(tried, text, silhouette)) {
                best = *std::move(larger);
            } else {
                tooLarge = tried;
            }
            tried = (best.scale + tooLarge) / 2;
        }
        const std::vector<Reading> larger = readings(comfortable);
        if (std::optional<Places> places = placesAt(best.scale, larger, silhouette)) {
            return layout(*std::move(places), larger);
        }
        return layout(std::move(best), text);
    }
    const double width = readingColumns(m_body).front().width;
    Columns columns = columnsAround(m_roomyScale, width);
    const double factor = columns.inOrder().empty() ? comfortable : 1;
    PageFlow flow = textToRead(width, factor, BlockParts::All);
    return {m_roomyScale, std::move(columns), std::move(flow)};
}

/// Adds the fire power and the design as a QR code to what stands beside the drawing, as far as
/// that leaves room, rather the code than the fire power.
void SheetCard::addExtras(Page& text, const Silhouette& silhouette, const Box& drawing) const {
    constexpr double gapBelow = 2;
    constexpr int strip = 2;
    FreeRoom room(m_body);
    for (const PageItem& item : text.items) {
        const Box box = boxOf(item);
        room.take({box.x, box.y - gapBelow, box.width, box.height + gapBelow});
    }
    const double scale = drawing.width / m_ink.width;
    for (int y = 0; y < drawing.height; y += strip) {
        const Silhouette::Extent extent = silhouette.between(y / scale, (y + strip) / scale);
        room.take({drawing.x + extent.left * scale, drawing.y + y,
                   (extent.right - extent.left) * scale, strip});
    }
    Page extras;
    FreeRoom besideRose = room;
    putFireRose(extras, m_sheet.facts.fire, besideRose);
    const auto code = shipQr(m_sheet.shipFile);
    if (Page alone; code && !putShipQr(extras, code, besideRose) && putShipQr(alone, code, room)) {
        extras = std::move(alone);
    }
    std::ranges::move(extras.items, std::back_inserter(text.items));
}

std::vector<PageBlock> SheetCard::putOn(Page& page) const {
    const Silhouette silhouette(m_sheet.record, m_ink, m_outlines);
    auto [scale, columns, flow] = bestLayout(silhouette);
    Page text;
    text.items.reserve(128);  // as many as nearly all sheets have
    Box free = m_body;
    flow.fill(columns.inCorners, text);
    if (!flow.isDone() && !columns.beside.empty()) {
        takeUp(columns.beside, flow, 0.5);
        flow.fill(columns.beside, text);
        free.width = columns.beside.front().x - columnGap - free.x;
    }
    if (!flow.isDone() && !columns.below.empty()) {
        takeUp(columns.below, flow, 1);
        flow.fill(columns.below, text);
        free.height -= columns.below.front().height + columnGap;
    }
    putBlock(page, m_head, m_box.x, m_box.y);
    // Its paper would cover text in its corners.
    const double width = m_ink.width * scale, height = m_ink.height * scale;
    const Box drawing = {free.x + (free.width - width) / 2, free.y + (free.height - height) / 2,
                         width, height};
    putDrawing(page, m_sheet.record, m_ink, drawing.x, drawing.y, scale);
    if (!m_isPlain) {
        addExtras(text, silhouette, drawing);
    }
    page.items.reserve(page.items.size() + text.items.size());
    std::ranges::move(text.items, std::back_inserter(page.items));
    return flow.takeRest();
}

}  // namespace fleetwright
