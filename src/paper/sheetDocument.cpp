#include "sheetDocument.h"

#include "FreeRoom.h"
#include "SheetCard.h"
#include "carriedShips.h"
#include "pageTexts.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <memory>
#include <set>
#include <utility>

namespace fleetwright {

namespace {

constexpr double cutGap = 6;  // between sheets on one page
// The least side of a paper that a sheet's head has room on, with all that it may say.
constexpr double leastPaperSide = 100;

std::size_t countOf(const PageCut& cut) {
    return std::size_t(cut.columns) * std::size_t(cut.rows);
}

/// What its margins leave of a page.
Box insideOf(const PageSize& paper) {
    return {paperMargin, paperMargin, paper.width - 2 * paperMargin,
            paper.height - 2 * paperMargin};
}

/// The parts of a page that is cut in this way.
std::vector<Box> cells(const Box& inside, const PageCut& cut) {
    const double width = (inside.width - (cut.columns - 1) * cutGap) / cut.columns;
    const double height = (inside.height - (cut.rows - 1) * cutGap) / cut.rows;
    std::vector<Box> boxes;
    for (int row = 0; row < cut.rows; ++row) {
        for (int column = 0; column < cut.columns; ++column) {
            boxes.push_back({inside.x + column * (width + cutGap),
                             inside.y + row * (height + cutGap), width, height});
        }
    }
    return boxes;
}

SheetOptions onLargeEnoughPaper(SheetOptions options) {
    options.paper = {std::max(options.paper.width, leastPaperSide),
                     std::max(options.paper.height, leastPaperSide)};
    return options;
}

/// Puts a sheet into its part of a page. One that goes on says so below itself. Returns what is
/// left to read.
std::vector<PageBlock> putSheet(const VectorSheet& sheet, const Box& box,
                                const SheetOptions& options, SheetCard::Room room, Page& page) {
    Page all;
    std::vector<PageBlock> rest = SheetCard(sheet, box, room, options).putOn(all);
    if (!rest.empty()) {
        PageText hint = {.text = "more on the next page",
                         .x = box.x + box.width,
                         .y = box.y + box.height,
                         .size = 2.6,
                         .anchor = PageText::Anchor::End,
                         .colour = quietInk};
        const Box covered = boxOf(hint);
        const double below = covered.y + covered.height - hint.y;
        hint.y -= below;
        all = {};
        const Box above = {box.x, box.y, box.width, box.height - covered.height};
        rest = SheetCard(sheet, above, room, options).putOn(all);
        all.items.emplace_back(std::move(hint));
    }
    std::ranges::move(all.items, std::back_inserter(page.items));
    return rest;
}

/// Pages for sheets, one after the other. Which of them share a page is found out at once; the
/// pages are made when they are asked for.
class SheetPages {
public:
    using Take = std::function<void(Page&&)>;

    SheetPages(const std::vector<SheetNote>& sheets, const SheetOptions& options);

    void each(const SheetSeries& sheets, const Take& take) const;

private:
    /// Sheets, by their numbers, that are small enough for pages that are cut in this way.
    struct Fitting {
        PageCut cut;
        std::vector<std::size_t> sheets;
    };

    static std::vector<Fitting> fittingSheets(const std::vector<SheetNote>& sheets);
    void makePage(const SheetSeries& sheets, const Fitting& onIt, const Take& take) const;
    void addCutMarks(Page& page, const PageCut& cut) const;
    void makeReading(std::vector<PageBlock> blocks, const Take& take) const;

    SheetOptions m_options;
    Box m_inside;
    std::vector<Fitting> m_pages;
};

/// Those for each cut.
std::vector<SheetPages::Fitting> SheetPages::fittingSheets(const std::vector<SheetNote>& sheets) {
    std::vector<Fitting> fitting;
    for (std::size_t cut = 0; cut < pageCuts.size(); ++cut) {
        fitting.push_back({pageCuts[cut], {}});
        for (std::size_t i = 0; i < sheets.size(); ++i) {
            if (sheets[i].fits[cut]) {
                fitting.back().sheets.push_back(i);
            }
        }
    }
    return fitting;
}

/// The first sheet that has no page shares one with as many of those behind it as it can.
SheetPages::SheetPages(const std::vector<SheetNote>& notes, const SheetOptions& options)
    : m_options(options), m_inside(insideOf(options.paper)) {
    const std::vector<Fitting> fitting = fittingSheets(notes);
    std::vector<std::size_t> next(fitting.size());  // of those that fit each cut
    std::vector<bool> hasPage(notes.size());
    for (std::size_t first = 0; first < notes.size(); ++first) {
        if (hasPage[first]) {
            continue;
        }
        Fitting best = {{1, 1}, {first}};
        for (std::size_t i = 0; i < fitting.size(); ++i) {
            const auto& [cut, fits] = fitting[i];
            while (next[i] < fits.size() && hasPage[fits[next[i]]]) {
                ++next[i];
            }
            std::vector<std::size_t> sheets;
            for (std::size_t at = next[i]; at < fits.size() && sheets.size() < countOf(cut); ++at) {
                if (!hasPage[fits[at]]) {
                    sheets.push_back(fits[at]);
                }
            }
            if (sheets.size() > best.sheets.size() && sheets.front() == first) {
                best = {cut, std::move(sheets)};
            }
        }
        for (const std::size_t sheet : best.sheets) {
            hasPage[sheet] = true;
        }
        m_pages.push_back(std::move(best));
    }
}

void SheetPages::each(const SheetSeries& sheets, const Take& take) const {
    for (const Fitting& page : m_pages) {
        makePage(sheets, page, take);
    }
}

void SheetPages::makePage(const SheetSeries& sheets, const Fitting& onIt, const Take& take) const {
    const std::vector<Box> boxes = cells(m_inside, onIt.cut);
    const auto room = boxes.size() == 1 ? SheetCard::Room::Page : SheetCard::Room::Part;
    const double width = readingColumns(m_inside).front().width;
    std::vector<PageBlock> left;
    Page page;
    for (std::size_t i = 0; i < onIt.sheets.size(); ++i) {
        const auto sheet = sheets.at(onIt.sheets[i]);
        page.contents.push_back(sheet->facts.shipName);
        std::vector<PageBlock> rest = putSheet(*sheet, boxes[i], m_options, room, page);
        if (!rest.empty()) {
            left.push_back(continuedBlock(sheet->facts.shipName, width));
            appendBlocks(left, std::move(rest));
        }
    }
    addCutMarks(page, onIt.cut);
    take(std::move(page));
    makeReading(std::move(left), take);
}

/// Marks where to cut, at the edges and in the middle.
void SheetPages::addCutMarks(Page& page, const PageCut& cut) const {
    constexpr double length = 4, lineWidth = 0.2;
    const auto mark = [&page](double x, double y, double dx, double dy) {
        page.items.emplace_back(PageLine{x - dx, y - dy, x + dx, y + dy, lineWidth, 0});
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
void SheetPages::makeReading(std::vector<PageBlock> blocks, const Take& take) const {
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
        take(std::move(page));
    }
}

/// The names of designers, each once.
class Designers {
public:
    void add(const std::string& name) {
        if (!name.empty() && m_names.insert(name).second) {
            text += (text.empty() ? "" : ", ") + name;
        }
    }

    std::string text;

private:
    std::set<std::string> m_names;
};

std::string subjectOf(const SheetFacts& facts) {
    return facts.designation + ", " + facts.hull + ", mass " + std::to_string(facts.mass) + ", " +
           std::to_string(facts.points) + " points";
}

/// All of a document but its pages.
PageDocument withoutPages(const SheetSeries& sheets, const SheetOptions& options) {
    PageDocument document;
    document.size = options.paper;
    document.language = "en";
    if (sheets.notes.size() == 1) {
        const auto sheet = sheets.at(0);
        document.title = sheet->facts.shipName;
        document.subject = subjectOf(sheet->facts);
    } else {
        document.title = std::to_string(sheets.notes.size()) + " sheets";
        document.subject = "Ship sheets";
    }
    std::size_t shipBytes = 0;
    for (const SheetNote& note : sheets.notes) {
        shipBytes += note.shipFileSize;
    }
    Designers designers;
    CarriedShips ships(sheets.notes.size(), shipBytes);
    for (std::size_t i = 0; i < sheets.notes.size(); ++i) {
        designers.add(sheets.notes[i].designer);
        document.date = std::max(document.date, sheets.notes[i].date);
        ships.add(sheets.shipFile(i));
    }
    document.author = designers.text;
    document.metadata = std::move(ships).element();
    return document;
}

}  // namespace

SheetNote noteOf(const VectorSheet& sheet, const SheetOptions& asked) {
    const SheetOptions options = onLargeEnoughPaper(asked);
    const Box inside = insideOf(options.paper);
    SheetNote note = {.fits = {},
                      .designer = sheet.facts.designer,
                      .shipFileSize = sheet.shipFile.size(),
                      .date = sheet.date};
    for (std::size_t i = 0; i < pageCuts.size(); ++i) {
        const PageCut& cut = pageCuts[i];
        note.fits[i] = countOf(cut) <= std::size_t(options.perPage) &&
                       SheetCard(sheet, cells(inside, cut).front(), SheetCard::Room::Part, options)
                           .isGoodHere();
    }
    return note;
}

PageDocument sheetDocument(const std::vector<VectorSheet>& sheets, const SheetOptions& asked) {
    const SheetOptions options = onLargeEnoughPaper(asked);
    SheetSeries series;
    for (const VectorSheet& sheet : sheets) {
        series.notes.push_back(noteOf(sheet, options));
    }
    series.at = [&sheets](std::size_t i) {
        return std::shared_ptr<const VectorSheet>(std::shared_ptr<void>(), &sheets[i]);
    };
    series.shipFile = [&sheets](std::size_t i) { return sheets[i].shipFile; };
    PageDocument document = withoutPages(series, options);
    SheetPages(series.notes, options).each(series, [&document](Page&& page) {
        document.pages.push_back(std::move(page));
    });
    return document;
}

PageDocument sheetDocument(SheetSeries sheets, const SheetOptions& asked) {
    const SheetOptions options = onLargeEnoughPaper(asked);
    PageDocument document = withoutPages(sheets, options);
    const SheetPages pages(sheets.notes, options);
    sheets.notes = {};
    document.morePages = [sheets = std::move(sheets), pages](const PageTaker& take) {
        pages.each(sheets, [&take](Page&& page) { take(page); });
    };
    return document;
}

}  // namespace fleetwright
