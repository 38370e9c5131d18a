#include "eachRosterPage.h"

#include "PageFlow.h"
#include "fleetWords.h"
#include "pageTexts.h"
#include "sheetHeader.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

namespace fleetwright {

namespace {

constexpr std::uint32_t inkColour = 0x000000, lineColour = 0xBBBBBB;
constexpr double rosterLineHeight = 1.28;  // times the size of the font
constexpr double rosterNameSize = 3.7, smallSize = 2.7, rosterLabelSize = 2.1;
constexpr double nameLeft = 11;  // the count stands in front of it

/// A column of figures.
struct Column {
    std::string_view label;
    double right;  ///< its right edge, from that of the page
};
constexpr std::array<Column, 6> figureColumns = {{{"MASS", 88},
                                                  {"POINTS", 73},
                                                  {"TOGETHER", 53},
                                                  {"DAMAGE / ROWS", 30},
                                                  {"THRUST", 15},
                                                  {"DRIVE", 0}}};
constexpr double figuresWidth = 98;  // with room in front of them

/// Puts lines below each other.
class RosterBlock {
public:
    explicit RosterBlock(double width) : m_width(width) {}

    /// Text from `left` on, in lines no wider than the block.
    void write(std::string_view text, double left, PageText style, std::size_t most) {
        for (const std::string& line :
             MeasuredText(text, style.font).lines(style.size, m_width - left, most)) {
            style.text = line;
            style.x = left;
            style.y = block.height + style.size * letterHeight;
            block.items.emplace_back(style);
            block.height += style.size * rosterLineHeight;
        }
    }

    void writeNotes(std::string_view notes, double left, double size) {
        constexpr std::size_t mostLines = 12;
        while (!notes.empty()) {
            const std::size_t end = std::min(notes.find('\n'), notes.size());
            write(notes.substr(0, end), left, {.text = {}, .size = size, .colour = quietInk},
                  mostLines);
            notes.remove_prefix(std::min(end + 1, notes.size()));
        }
    }

    void rule(double lineWidth, std::uint32_t colour) {
        block.items.emplace_back(
            PageLine{0, block.height, m_width, block.height, lineWidth, colour});
    }

    PageBlock block;

private:
    double m_width;
};

PageText figureText(std::string text, double right, double y) {
    return {.text = std::move(text),
            .x = right,
            .y = y,
            .size = rosterNameSize,
            .font = PageFont::Regular,
            .anchor = PageText::Anchor::End};
}

using Figures = std::array<std::string, figureColumns.size()>;

/// The size in which all figures of a ship keep to their columns.
double sizeOf(const Figures& figures) {
    constexpr double between = 1.5;
    double size = rosterNameSize, left = figuresWidth;
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const double room =
            std::exchange(left, figureColumns[i].right) - figureColumns[i].right - between;
        size = std::min(size,
                        fittedText(figures[i], {.text = {}, .size = rosterNameSize}, room, 0).size);
    }
    return size;
}

std::string joinedNames(const FleetShip& ship) {
    std::string names;
    for (const std::string& name : ship.names) {
        names += name.empty() ? "" : (names.empty() ? "" : " · ") + name;
    }
    return names;
}

PageBlock headBlock(double width) {
    RosterBlock head(width);
    const double y = rosterLabelSize * letterHeight;
    const auto label = [&](std::string_view text, double x, PageText::Anchor anchor) {
        head.block.items.emplace_back(PageText{.text = std::string(text),
                                               .x = x,
                                               .y = y,
                                               .size = rosterLabelSize,
                                               .font = PageFont::Regular,
                                               .anchor = anchor,
                                               .colour = quietInk});
    };
    label("SHIP", nameLeft, PageText::Anchor::Start);
    for (const Column& column : figureColumns) {
        label(column.label, width - column.right, PageText::Anchor::End);
    }
    head.block.height = rosterLabelSize * 1.6;
    head.rule(0.2, inkColour);
    return std::move(head.block);
}

/// A design: its count, name and figures, and below them what kind of ship it is, the names of its
/// ships and what is noted of it.
PageBlock shipBlock(const FleetShip& ship, const FleetRow& row, double width) {
    constexpr double roomAbove = 1.2, roomBelow = 1.4;
    RosterBlock text(width);
    text.block.height = roomAbove;
    const double y = roomAbove + rosterNameSize * letterHeight;
    PageText count = figureText(std::to_string(ship.count) + " ×", nameLeft - 2, y);
    count.size = fittedText(count.text, {.text = {}, .size = rosterNameSize}, nameLeft - 2, 0).size;
    text.block.items.emplace_back(std::move(count));
    const std::string name = !row.figures ? ship.file : row.figures->name;
    PageText shown = fittedText(name.empty() ? "Unnamed Ship" : name,
                                {.text = {}, .size = rosterNameSize, .font = PageFont::Bold},
                                width - nameLeft - figuresWidth, smallSize);
    shown.x = nameLeft;
    shown.y = y;
    text.block.items.emplace_back(std::move(shown));
    text.block.height += rosterNameSize * rosterLineHeight;

    const PageText quiet = {.text = {}, .size = smallSize, .colour = quietInk};
    if (row.figures) {
        const ShipFigures& figures = *row.figures;
        const Figures values = {std::to_string(figures.mass),
                                std::to_string(figures.points),
                                std::to_string(std::int64_t{ship.count} * figures.points),
                                std::to_string(figures.damagePoints) + " / " +
                                    std::to_string(figures.damageRows),
                                thrustWord(figures),
                                std::string(driveWord(figures))};
        const double size = sizeOf(values);
        for (std::size_t i = 0; i < values.size(); ++i) {
            PageText figure = figureText(values[i], width - figureColumns[i].right, y);
            figure.size = size;
            text.block.items.emplace_back(std::move(figure));
        }
        text.write(figures.hull + ", " + sizeWords(figures) +
                       (hasChanged(ship, row) ? ", changed since the fleet was written" : ""),
                   nameLeft, quiet, 2);
    } else {
        text.write("does not load" +
                       (row.faults.empty() ? std::string() : ": " + row.faults.front().text),
                   nameLeft, quiet, 2);
    }
    if (const std::string names = joinedNames(ship); !names.empty()) {
        text.write(names, nameLeft, {.text = {}, .size = smallSize + 0.3}, MeasuredText::any);
    }
    text.writeNotes(ship.notes, nameLeft, smallSize);
    text.block.height += roomBelow;
    text.rule(0.15, lineColour);
    return std::move(text.block);
}

PageBlock limitsBlock(const std::vector<LimitWords>& limits, double width) {
    RosterBlock block(width);
    block.block.height = 3;
    for (const LimitWords& limit : limits) {
        block.write(
            limit.text, nameLeft,
            {.text = {}, .size = 3.2, .font = limit.isBroken ? PageFont::Bold : PageFont::Regular},
            2);
    }
    return std::move(block.block);
}

PageBlock titleBlock(const Fleet& fleet, const FleetSum& sum, double width) {
    RosterBlock title(width);
    const double size = 9;
    PageText name = fittedText(fleet.name.empty() ? "Unnamed Fleet" : fleet.name,
                               {.text = {}, .size = size, .font = PageFont::Bold}, width, size / 2);
    name.y = size * letterHeight;
    title.block.items.emplace_back(std::move(name));
    title.block.height = size * 1.15;
    if (!fleet.player.empty()) {
        title.write(fleet.player, 0, {.text = {}, .size = 3.3, .colour = quietInk}, 1);
    }
    title.block.height += 1.5;
    std::vector<HeadFigure> figures = {{"SHIPS", std::to_string(sum.ships)},
                                       {"POINTS", std::to_string(sum.points)}};
    if (sum.pointsLeft) {
        figures.push_back({"POINTS LIMIT", std::to_string(*fleet.pointsLimit)});
        figures.push_back(
            {*sum.pointsLeft < 0 ? "TOO MANY" : "LEFT", std::to_string(std::abs(*sum.pointsLeft))});
    }
    figures.push_back({"MASS", std::to_string(sum.mass)});
    figures.push_back({"DAMAGE POINTS", std::to_string(sum.damagePoints)});
    const PageBlock between = figuresBlock(figures, width);
    Page page;
    putBlock(page, between, 0, title.block.height);
    title.block.height += between.height + 1.5;
    std::move(page.items.begin(), page.items.end(), std::back_inserter(title.block.items));
    title.writeNotes(fleet.notes, 0, 3);
    title.block.height += 3;
    return std::move(title.block);
}

/// The pages of a roster. They are made one by one: there may be thousands of ships.
class Roster {
public:
    Roster(const Fleet& fleet, const FleetRows& rows, const PageSize& paper);

    void each(const PageTaker& take) const;

private:
    using PartTaker = std::function<void(PageBlock&&)>;

    void eachPart(const PartTaker& take) const;
    std::vector<std::size_t> pageEnds() const;
    double heightOfPage() const;
    Box roomOn(std::size_t page) const;
    Page startedPage(std::size_t number) const;
    void addFoot(Page& page, std::size_t number, std::size_t pages) const;

    const Fleet& m_fleet;
    const FleetRows& m_rows;
    Box m_inside;
    FleetSum m_sum;
    PageBlock m_head;
    std::vector<PageBlock> m_title;  ///< its parts, a page for each; ships begin below the last
};

Roster::Roster(const Fleet& fleet, const FleetRows& rows, const PageSize& paper)
    : m_fleet(fleet), m_rows(rows),
      m_inside{paperMargin, paperMargin, paper.width - 2 * paperMargin,
               paper.height - 2 * paperMargin},
      m_sum(fleetSum(fleet, rows)), m_head(headBlock(m_inside.width)),
      m_title(partsOf(titleBlock(fleet, m_sum, m_inside.width), heightOfPage())) {}

/// Hands over what stands on the pages: ships, and the limits behind all of them.
void Roster::eachPart(const PartTaker& take) const {
    const double height = heightOfPage();
    const auto takeBlock = [&](PageBlock&& block) {
        for (PageBlock& part : partsOf(std::move(block), height)) {
            take(std::move(part));
        }
    };
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        takeBlock(shipBlock(m_fleet.ships[i], *m_rows[i], m_inside.width));
    }
    if (const std::vector<LimitWords> limits = limitWords(m_fleet, m_sum); !limits.empty()) {
        takeBlock(limitsBlock(limits, m_inside.width));
    }
}

/// What the head and the foot leave.
double Roster::heightOfPage() const {
    constexpr double footHeight = 5;
    return m_inside.height - m_head.height - footHeight;
}

/// What is left below the title.
Box Roster::roomOn(std::size_t page) const {
    const double title = page < m_title.size() ? m_title[page].height : 0;
    return {m_inside.x, m_inside.y + title + m_head.height, m_inside.width,
            page + 1 < m_title.size() ? 0 : heightOfPage() - title};
}

/// For each page the first part that is behind it.
std::vector<std::size_t> Roster::pageEnds() const {
    std::vector<std::size_t> ends;
    std::size_t count = 0;
    double y = 0;
    eachPart([&](const PageBlock& part) {
        // Beside a title there may be too little room for anything.
        while (y + part.height > roomOn(ends.size()).height + lengthTolerance &&
               (y > 0 || ends.size() < m_title.size())) {
            ends.push_back(count);
            y = 0;
        }
        y += part.height;
        ++count;
    });
    while (ends.size() < m_title.size()) {
        ends.push_back(count);
    }
    if (ends.back() < count) {
        ends.push_back(count);
    }
    return ends;
}

Page Roster::startedPage(std::size_t number) const {
    Page page;
    if (number < m_title.size()) {
        putBlock(page, m_title[number], m_inside.x, m_inside.y);
    }
    if (number + 1 >= m_title.size()) {
        putBlock(page, m_head, m_inside.x, roomOn(number).y - m_head.height);
    }
    return page;
}

void Roster::each(const PageTaker& take) const {
    const std::vector<std::size_t> ends = pageEnds();
    std::size_t number = 0, next = 0;
    Page page = startedPage(number);
    page.contents = {"Roster"};
    double y = roomOn(number).y;
    const auto endPage = [&] {
        if (ends.size() > 1) {
            addFoot(page, number + 1, ends.size());
        }
        take(page);
        ++number;
    };
    eachPart([&](PageBlock&& part) {
        for (; next == ends[number]; y = roomOn(number).y) {
            endPage();
            page = startedPage(number);
        }
        const double height = part.height;
        putBlock(page, std::move(part), m_inside.x, y);
        y += height;
        ++next;
    });
    for (endPage(); number < ends.size(); endPage()) {
        page = startedPage(number);
    }
}

/// The name of the fleet and the number of the page, at its bottom.
void Roster::addFoot(Page& page, std::size_t number, std::size_t pages) const {
    constexpr double below = 0.25;  // the line, of the font's size: what letters take there
    const double y = m_inside.y + m_inside.height - below * smallSize;
    PageText name = fittedText(m_fleet.name, {.text = {}, .size = smallSize, .colour = quietInk},
                               m_inside.width - 40, smallSize);
    name.x = m_inside.x;
    name.y = y;
    page.items.emplace_back(std::move(name));
    page.items.emplace_back(
        PageText{.text = "Page " + std::to_string(number) + " of " + std::to_string(pages),
                 .x = m_inside.x + m_inside.width,
                 .y = y,
                 .size = smallSize,
                 .font = PageFont::Regular,
                 .anchor = PageText::Anchor::End,
                 .colour = quietInk});
}

}  // namespace

void eachRosterPage(const Fleet& fleet, const FleetRows& rows, const PageSize& paper,
                    const PageTaker& take) {
    Roster(fleet, rows, paper).each(take);
}

}  // namespace fleetwright
