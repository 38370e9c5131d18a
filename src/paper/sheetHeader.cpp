#include "sheetHeader.h"

#include "pageTexts.h"
#include "text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <span>
#include <utility>

namespace fleetwright {

namespace {

constexpr double leastWideHeader = 150;
constexpr double besideWidth = 62, besideHeight = 14.4;

struct Figure : HeadFigure {
    double width = 0;
};

constexpr double labelSize = 2.1, valueSize = 3.6, smallValueSize = 3, leastGap = 4;

/// A ship with fewer points than rows does not get all of these.
std::string damageOf(const SheetFacts& facts) {
    std::string text = std::to_string(facts.damagePoints);
    if (facts.damagePoints >= facts.damageRows) {
        text +=
            " in " + std::to_string(facts.damageRows) + (facts.damageRows == 1 ? " row" : " rows");
    }
    return text;
}

using FigureRow = std::span<const Figure>;

std::vector<Figure> measured(const std::vector<HeadFigure>& given, double size) {
    std::vector<Figure> figures;
    figures.reserve(given.size());
    for (const HeadFigure& figure : given) {
        const double width = std::max(textWidth(figure.label, labelSize),
                                      textWidth(figure.value, size, PageFont::Bold));
        figures.push_back({figure, width});
    }
    return figures;
}

/// How wide figures are beside each other.
double widthOf(FigureRow row) {
    return std::accumulate(
        row.begin(), row.end(), -leastGap,
        [](double width, const Figure& figure) { return width + figure.width + leastGap; });
}

/// Figures in rows of this width and of as many each, as far as they fit.
std::vector<FigureRow> figureRows(FigureRow figures, std::size_t inEach, double width) {
    std::vector<FigureRow> rows;
    while (!figures.empty()) {
        std::size_t count = 1;
        while (count < std::min(inEach, figures.size()) &&
               widthOf(figures.first(count)) + figures[count].width + leastGap <= width) {
            ++count;
        }
        rows.push_back(figures.first(count));
        figures = figures.subspan(count);
    }
    return rows;
}

class HeaderBlock {
public:
    explicit HeaderBlock(double width) : m_width(width) {}

    void writeName(const SheetFacts& facts, double room, double size);
    void writeFigures(const std::vector<HeadFigure>& figures);

    PageBlock block;

private:
    void rule(double lineWidth) {
        block.items.emplace_back(
            PageLine{0, block.height, m_width, block.height, lineWidth, 0x000000});
    }
    void writeRow(FigureRow row, double size);

    double m_width;
};

/// "Heavy Cruiser, Cruiser class"; the largest ships have no designation of their own.
std::string kindOf(const SheetFacts& facts) {
    const std::string kind = facts.shipClass + " class";
    return toCapitals(facts.designation) == toCapitals(facts.shipClass)
               ? kind
               : facts.designation + ", " + kind;
}

void HeaderBlock::writeName(const SheetFacts& facts, double room, double size) {
    const double leastName = size / 2, kindSize = 3.3;
    PageText name = fittedText(facts.shipName, {.text = {}, .size = size, .font = PageFont::Bold},
                               room, leastName);
    name.y = size * letterHeight;
    block.items.emplace_back(std::move(name));
    PageText kind =
        fittedText(kindOf(facts), {.text = {}, .size = kindSize, .colour = quietInk}, room, 2);
    kind.y = size * letterHeight + kindSize * 1.45;
    block.height = kind.y + 2;
    block.items.emplace_back(std::move(kind));
}

void HeaderBlock::writeRow(FigureRow row, double size) {
    constexpr double mostGap = 16;
    const double spare = m_width - widthOf(row);
    const double gap =
        row.size() < 2 ? 0 : std::min(leastGap + spare / double(row.size() - 1), mostGap);
    double x = 0;
    for (const Figure& figure : row) {
        block.items.emplace_back(PageText{.text = figure.label,
                                          .x = x,
                                          .y = block.height + 2.7,
                                          .size = labelSize,
                                          .colour = quietInk});
        PageText value = fittedText(
            figure.value, {.text = {}, .size = size, .font = PageFont::Bold}, m_width - x, 2);
        value.x = x;
        value.y = block.height + 6.6;
        block.items.emplace_back(std::move(value));
        x += figure.width + gap;
    }
    block.height += 7.9;
}

/// In one row, if need be in a smaller font, or else in rows of equally many.
void HeaderBlock::writeFigures(const std::vector<HeadFigure>& figures) {
    rule(0.5);
    double size = valueSize;
    std::vector<Figure> row = measured(figures, size);
    while (size > smallValueSize && widthOf(row) > m_width) {
        constexpr double step = 0.1;
        size -= step;
        row = measured(figures, size);
    }
    if (widthOf(row) > m_width) {
        size = valueSize;
        row = measured(figures, size);
    }
    const std::size_t rows = figureRows(row, row.size(), m_width).size();
    for (const FigureRow part : figureRows(row, (row.size() + rows - 1) / rows, m_width)) {
        writeRow(part, size);
    }
    rule(0.2);
}

}  // namespace

std::vector<HeadFigure> headFigures(const SheetFacts& facts) {
    std::vector<HeadFigure> figures = {{"HULL", facts.hull},
                                       {"MASS", std::to_string(facts.mass)},
                                       {"POINTS", std::to_string(facts.points)},
                                       {"THRUST", facts.thrust},
                                       {"DRIVE", facts.drive},
                                       {"DAMAGE", damageOf(facts)}};
    if (!facts.armor.empty()) {
        figures.push_back({"ARMOR", facts.armor});
    }
    if (!facts.streamlining.empty()) {
        figures.push_back({"STREAMLINING", facts.streamlining});
    }
    return figures;
}

PageBlock figuresBlock(const std::vector<HeadFigure>& figures, double width) {
    HeaderBlock header(width);
    header.writeFigures(figures);
    return std::move(header.block);
}

Box roomInHeader(double width) {
    return {width - besideWidth, 0, width < leastWideHeader ? 0 : besideWidth, besideHeight};
}

PageBlock sheetHeader(const SheetFacts& facts, const std::vector<PageBlock>& lines, double width) {
    constexpr double largeName = 9, smallName = 6.5, gap = 4;
    const Box beside = roomInHeader(width);
    HeaderBlock header(width);
    header.writeName(facts, lines.empty() ? width : beside.x - gap,
                     width < leastWideHeader ? smallName : largeName);
    header.writeFigures(headFigures(facts));
    Page page;
    double y = 0;
    for (const PageBlock& line : lines) {
        putBlock(page, line, beside.x, y);
        y += line.height;
    }
    std::move(page.items.begin(), page.items.end(), std::back_inserter(header.block.items));
    return std::move(header.block);
}

}  // namespace fleetwright
