#include "sheetDocument.h"

#include "SheetCard.h"
#include "carriedShips.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <set>
#include <utility>

namespace fleetwright {

namespace {

constexpr double cutGap = 6;  // between sheets on one page
// The least side of a paper that a sheet's head has room on, with all that it may say.
constexpr double leastPaperSide = 100;

/// Pages for sheets, one after the other. Which of them share a page is found out at once, as they
/// come; the pages are made when they are asked for.
class SheetPages {
public:
    using Take = std::function<void(Page&&)>;

    explicit SheetPages(const SheetOptions& options);

    /// Has another sheet on some page.
    void add(const VectorSheet& sheet);
    /// All sheets are there.
    void finish();
    void each(const SheetSeries& sheets, const Take& take) const;

private:
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
    void makePage(const SheetSeries& sheets, const Fitting& onIt, const Take& take) const;
    void addCutMarks(Page& page, Cut cut) const;
    void makeReading(std::vector<PageBlock> blocks, const Take& take) const;

    SheetOptions m_options;
    Box m_inside;
    std::size_t m_count = 0;
    std::vector<Fitting> m_waiting;  ///< those that have no page yet, for each cut
    std::vector<Fitting> m_pages;
};

SheetPages::SheetPages(const SheetOptions& options)
    : m_options(options), m_inside{paperMargin, paperMargin, options.paper.width - 2 * paperMargin,
                                   options.paper.height - 2 * paperMargin} {
    for (const Cut cut : {Cut{1, 1}, Cut{2, 1}, Cut{1, 2}, Cut{2, 2}}) {
        if (cut.count() <= std::size_t(m_options.perPage)) {
            m_waiting.push_back({cut, {}});
        }
    }
}

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

void SheetPages::add(const VectorSheet& sheet) {
    for (auto& [cut, fits] : m_waiting) {
        const Box cell = cells(cut).front();
        if (cut.count() == 1 || SheetCard(sheet, cell, cut.room(), m_options).isGoodHere()) {
            fits.push_back(m_count);
        }
    }
    ++m_count;
}

/// The first sheet that has no page shares one with as many of those behind it as it can.
void SheetPages::finish() {
    std::vector<std::size_t> next(m_waiting.size());  // of those that fit each cut
    std::vector<bool> hasPage(m_count);
    for (std::size_t first = 0; first < m_count && !m_waiting.empty(); ++first) {
        if (hasPage[first]) {
            continue;
        }
        Fitting best = {{1, 1}, {first}};
        for (std::size_t i = 0; i < m_waiting.size(); ++i) {
            const auto& [cut, fits] = m_waiting[i];
            while (next[i] < fits.size() && hasPage[fits[next[i]]]) {
                ++next[i];
            }
            std::vector<std::size_t> sheets;
            for (std::size_t at = next[i]; at < fits.size() && sheets.size() < cut.count(); ++at) {
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
    m_waiting.clear();
}

void SheetPages::each(const SheetSeries& sheets, const Take& take) const {
    for (const Fitting& page : m_pages) {
        makePage(sheets, page, take);
    }
}

void SheetPages::makePage(const SheetSeries& sheets, const Fitting& onIt, const Take& take) const {
    const std::vector<Box> boxes = cells(onIt.cut);
    const double width = readingColumns(m_inside).front().width;
    std::vector<PageBlock> left;
    Page page;
    for (std::size_t i = 0; i < onIt.sheets.size(); ++i) {
        const auto sheet = sheets.at(onIt.sheets[i]);
        const SheetCard card(*sheet, boxes[i], onIt.cut.room(), m_options);
        std::vector<PageBlock> rest = card.putOn(page);
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
void SheetPages::addCutMarks(Page& page, Cut cut) const {
    constexpr double length = 4, lineWidth = 0.15;
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
PageDocument withoutPages(const SheetSeries& sheets, const SheetOptions& options,
                          SheetPages& pages) {
    PageDocument document;
    document.size = options.paper;
    document.language = "en";
    document.title = std::to_string(sheets.count) + " sheets";
    document.subject = "Ship sheets";
    Designers designers;
    std::vector<std::string> shipFiles;
    for (std::size_t i = 0; i < sheets.count; ++i) {
        const auto sheet = sheets.at(i);
        pages.add(*sheet);
        designers.add(sheet->facts.designer);
        document.date = std::max(document.date, sheet->date);
        shipFiles.push_back(sheet->shipFile);
        if (sheets.count == 1) {
            document.title = sheet->facts.shipName;
            document.subject = subjectOf(sheet->facts);
        }
    }
    pages.finish();
    document.author = designers.text;
    document.metadata = carriedShips(shipFiles);
    return document;
}

SheetOptions onLargeEnoughPaper(SheetOptions options) {
    options.paper = {std::max(options.paper.width, leastPaperSide),
                     std::max(options.paper.height, leastPaperSide)};
    return options;
}

}  // namespace

PageDocument sheetDocument(const std::vector<VectorSheet>& sheets, const SheetOptions& asked) {
    const SheetSeries series = {sheets.size(), [&sheets](std::size_t i) {
                                    return std::shared_ptr<const VectorSheet>(
                                        std::shared_ptr<void>(), &sheets[i]);
                                }};
    const SheetOptions options = onLargeEnoughPaper(asked);
    SheetPages pages(options);
    PageDocument document = withoutPages(series, options, pages);
    pages.each(series, [&](Page&& page) { document.pages.push_back(std::move(page)); });
    return document;
}

PageDocument sheetDocument(const SheetSeries& sheets, const SheetOptions& asked) {
    const SheetOptions options = onLargeEnoughPaper(asked);
    SheetPages pages(options);
    PageDocument document = withoutPages(sheets, options, pages);
    document.morePages = [sheets, pages = std::move(pages)](const PageTaker& take) {
        pages.each(sheets, [&take](Page&& page) { take(page); });
    };
    return document;
}

}  // namespace fleetwright
