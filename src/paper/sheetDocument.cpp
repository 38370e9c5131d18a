#include "sheetDocument.h"

#include "SheetCard.h"
#include "carriedShips.h"

#include <algorithm>
#include <cstddef>

namespace fleetwright {

namespace {

constexpr double cutGap = 6;  // between sheets on one page
// The least side of a paper that a sheet's head has room on, with all that it may say.
constexpr double leastPaperSide = 100;

/// Pages for sheets, one after the other.
class SheetPages {
public:
    explicit SheetPages(const SheetOptions& options)
        : m_options(options), m_inside{paperMargin, paperMargin,
                                       options.paper.width - 2 * paperMargin,
                                       options.paper.height - 2 * paperMargin} {}

    void add(const std::vector<VectorSheet>& sheets);

    std::vector<Page> pages;

private:
    using Sheets = std::vector<VectorSheet>;
    /// A page that is cut into columns and rows.
    struct Cut {
        int columns;
        int rows;

        std::size_t count() const { return std::size_t(columns) * std::size_t(rows); }
        SheetCard::Room room() const {
            return count() == 1 ? SheetCard::Room::Page : SheetCard::Room::Part;
        }
    };
    /// Sheets, by their numbers, that are small enough for pages that are cut in this way.
    struct Fitting {
        Cut cut;
        std::vector<std::size_t> sheets;
    };

    std::vector<Box> cells(Cut cut) const;
    Fitting fitting(const Sheets& sheets, Cut cut) const;
    void addPage(const Sheets& sheets, const Fitting& onIt);
    void addCutMarks(Cut cut);
    void addReading(std::vector<PageBlock> blocks);

    SheetOptions m_options;
    Box m_inside;
};

std::vector<Box> SheetPages::cells(Cut cut) const {
    const double width = (m_inside.width - (cut.columns - 1) * cutGap) / cut.columns;
    const double height = (m_inside.height - (cut.rows - 1) * cutGap) / cut.rows;
    std::vector<Box> boxes;
    for (int row = 0; row < cut.rows; ++row) {
        for (int column = 0; column < cut.columns; ++column) {
            boxes.push_back({m_inside.x + column * (width + cutGap),
                             m_inside.y + row * (height + cutGap), width, height});
        }
    }
    return boxes;
}

SheetPages::Fitting SheetPages::fitting(const Sheets& sheets, Cut cut) const {
    const Box cell = cells(cut).front();
    Fitting fitting = {cut, {}};
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        if (cut.count() == 1 || SheetCard(sheets[i], cell, cut.room(), m_options).isGoodHere()) {
            fitting.sheets.push_back(i);
        }
    }
    return fitting;
}

/// The first sheet that has no page shares one with as many of those behind it as it can.
void SheetPages::add(const Sheets& sheets) {
    std::vector<Fitting> waiting;
    for (const Cut cut : {Cut{1, 1}, Cut{2, 1}, Cut{1, 2}, Cut{2, 2}}) {
        if (cut.count() <= std::size_t(m_options.perPage)) {
            waiting.push_back(fitting(sheets, cut));
        }
    }
    while (!waiting.empty() && !waiting.front().sheets.empty()) {
        const std::size_t first = waiting.front().sheets.front();
        Fitting best = {{1, 1}, {first}};
        for (const auto& [cut, fits] : waiting) {
            const std::size_t count = std::min(fits.size(), cut.count());
            if (count > best.sheets.size() && fits.front() == first) {
                best = {cut, {fits.begin(), fits.begin() + std::ptrdiff_t(count)}};
            }
        }
        addPage(sheets, best);
        for (Fitting& left : waiting) {
            std::erase_if(left.sheets, [&](std::size_t sheet) {
                return std::ranges::find(best.sheets, sheet) != best.sheets.end();
            });
        }
    }
}

void SheetPages::addPage(const Sheets& sheets, const Fitting& onIt) {
    const std::vector<Box> boxes = cells(onIt.cut);
    const double width = readingColumns(m_inside).front().width;
    std::vector<PageBlock> left;
    Page page;
    for (std::size_t i = 0; i < onIt.sheets.size(); ++i) {
        const VectorSheet& sheet = sheets[onIt.sheets[i]];
        const SheetCard card(sheet, boxes[i], onIt.cut.room(), m_options);
        std::vector<PageBlock> rest = card.putOn(page);
        if (!rest.empty()) {
            left.push_back(continuedBlock(sheet.facts.shipName, width));
            appendBlocks(left, std::move(rest));
        }
    }
    pages.push_back(std::move(page));
    addCutMarks(onIt.cut);
    addReading(std::move(left));
}

/// Marks where to cut, at the edges and in the middle.
void SheetPages::addCutMarks(Cut cut) {
    constexpr double length = 4, lineWidth = 0.15;
    const auto mark = [this](double x, double y, double dx, double dy) {
        pages.back().items.emplace_back(PageLine{x - dx, y - dy, x + dx, y + dy, lineWidth, 0});
    };
    const double x = m_inside.x + m_inside.width / 2, y = m_inside.y + m_inside.height / 2;
    const double right = m_inside.x + m_inside.width, bottom = m_inside.y + m_inside.height;
    if (cut.columns > 1) {
        mark(x, m_inside.y + length / 2, 0, length / 2);
        mark(x, bottom - length / 2, 0, length / 2);
        mark(x, y, 0, cutGap / 2);
    }
    if (cut.rows > 1) {
        mark(m_inside.x + length / 2, y, length / 2, 0);
        mark(right - length / 2, y, length / 2, 0);
        mark(x, y, cutGap / 2, 0);
    }
}

/// Goes on with what found no room beside drawings.
void SheetPages::addReading(std::vector<PageBlock> blocks) {
    PageFlow flow(std::move(blocks));
    while (!flow.isDone()) {
        Page page;
        std::vector<Box> columns = readingColumns(m_inside);
        const double height = flow.balancedHeight(columns);
        for (Box& column : columns) {
            column.height = height;
        }
        flow.fill(columns, page);
        if (page.items.empty()) {
            flow.force(columns.front(), page);
        }
        pages.push_back(std::move(page));
    }
}

/// The designers, each once.
std::string designersOf(const std::vector<VectorSheet>& sheets) {
    std::vector<std::string> names;
    std::string text;
    for (const VectorSheet& sheet : sheets) {
        const std::string& name = sheet.facts.designer;
        if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end()) {
            names.push_back(name);
            text += (text.empty() ? "" : ", ") + name;
        }
    }
    return text;
}

std::string subjectOf(const SheetFacts& facts) {
    return facts.designation + ", " + facts.hull + ", mass " + std::to_string(facts.mass) + ", " +
           std::to_string(facts.points) + " points";
}

}  // namespace

PageDocument sheetDocument(const std::vector<VectorSheet>& sheets, const SheetOptions& asked) {
    SheetOptions options = asked;
    options.paper = {std::max(asked.paper.width, leastPaperSide),
                     std::max(asked.paper.height, leastPaperSide)};
    SheetPages laidOut(options);
    laidOut.add(sheets);
    PageDocument document;
    document.size = options.paper;
    document.pages = std::move(laidOut.pages);
    document.author = designersOf(sheets);
    document.language = "en";
    if (sheets.size() == 1) {
        document.title = sheets.front().facts.shipName;
        document.subject = subjectOf(sheets.front().facts);
    } else {
        document.title = std::to_string(sheets.size()) + " sheets";
        document.subject = "Ship sheets";
    }
    std::vector<std::string> shipFiles;
    for (const VectorSheet& sheet : sheets) {
        document.date = std::max(document.date, sheet.date);
        shipFiles.push_back(sheet.shipFile);
    }
    document.metadata = carriedShips(shipFiles);
    return document;
}

}  // namespace fleetwright
