#include "sheetBlocks.h"

#include "KeptSheetParts.h"

#include <algorithm>
#include <map>
#include <utility>

namespace fleetwright {

namespace {

constexpr double lineHeight = 1.28;  // times the size of the font
constexpr std::string_view noBreakSpace = "\u00A0";

/// Writes lines below each other.
class BlockWriter {
public:
    explicit BlockWriter(double left = 0) : m_left(left) {}

    void write(std::vector<std::string> lines, PageText style) {
        style.text.clear();
        style.x = m_left;
        for (std::string& line : lines) {
            style.y = block.height + style.size * letterHeight;
            block.height += style.size * lineHeight;
            std::get<PageText>(block.items.emplace_back(style)).text = std::move(line);
        }
    }
    /// Leaves the room of as many lines.
    void leaveOut(std::size_t lines, double size) {
        for (; lines > 0; --lines) {
            block.height += size * lineHeight;
        }
    }

    PageBlock block;

private:
    double m_left;
};

std::string pieces(std::int64_t count) {
    return " x " + std::to_string(count);
}

/// A few words that no line parts.
std::string together(std::string words) {
    for (std::size_t at = words.find(' ', 1); at != std::string::npos; at = words.find(' ', at)) {
        words.replace(at, 1, noBreakSpace);
    }
    return words;
}

constexpr std::string_view figureCharacters = "0123456789+";

bool endsInFigure(std::string_view word) {
    return !word.empty() && figureCharacters.find(word.back()) != std::string_view::npos;
}

/// Whether a word is a figure with a mark behind it, as "3+." is.
bool isMarkedFigure(std::string_view word) {
    const std::size_t mark = word.find_first_not_of(figureCharacters);
    return mark != std::string_view::npos && mark > 0 && mark + 1 == word.size();
}

/// A rules text in which no line parts a figure from its word, as in "5+ far" and "on 3+.".
std::string withFiguresHeld(std::string_view rules) {
    std::string text;
    while (!rules.empty()) {
        const std::size_t end = std::min(rules.find(' '), rules.size());
        const std::string_view word = rules.substr(0, end);
        rules.remove_prefix(std::min(end + 1, rules.size()));
        text += word;
        if (!rules.empty()) {
            const std::string_view next = rules.substr(0, rules.find(' '));
            text += endsInFigure(word) || isMarkedFigure(next) ? noBreakSpace : " ";
        }
    }
    return text;
}

MeasuredText measuredName(std::string_view name) {
    return MeasuredText(name, PageFont::Bold);
}
MeasuredText measuredWords(std::string_view words) {
    return MeasuredText(words);
}
MeasuredText measuredRules(std::string_view rules) {
    return MeasuredText(withFiguresHeld(rules));
}

/// Adds a block for each line of a text.
void addLines(std::vector<PageBlock>& blocks, const MeasuredText& text, double width, double size,
              BlockParts parts) {
    if (parts == BlockParts::Heights) {
        BlockWriter writer;
        writer.leaveOut(1, size);
        blocks.insert(blocks.end(), text.lineCount(size, width), writer.block);
        return;
    }
    for (std::string& line : text.lines(size, width)) {
        BlockWriter writer;
        writer.write({std::move(line)}, {.text = {}, .size = size});
        blocks.push_back(std::move(writer.block));
    }
}

void appendPart(std::string& text, std::string_view parting, const std::string& part) {
    if (!part.empty()) {
        text += (text.empty() ? "" : std::string(parting)) + part;
    }
}

/// "mass 3, 10 points each", as far as there is something to say.
std::string priceOf(const LegendRow& row, std::int32_t bought) {
    const std::int32_t parts = row.isLinear ? std::max(bought, 1) : 1;
    const std::int32_t mass = row.mass / parts, points = row.points / parts;
    std::string price = mass == 0 ? "" : together("mass " + std::to_string(mass));
    if (points != 0) {
        appendPart(price, ", ",
                   together(std::to_string(points) + (points == 1 ? " point" : " points")));
    }
    if (!price.empty() && bought > 1) {
        price += row.isLinear ? " each" : " together";
    }
    return price;
}

}  // namespace

std::string particulars(const LegendRow& row) {
    const std::int32_t bought = row.count - row.withHull;
    std::string text = row.arcs;
    if (row.withHull > 0) {
        appendPart(text, "; ", together(std::to_string(row.withHull) + " with the hull"));
    }
    std::string price = priceOf(row, bought);
    if (row.withHull > 0 && !price.empty()) {
        price.insert(0, together(std::to_string(bought) + " more:") + ' ');
    }
    appendPart(text, "; ", price);
    return text;
}

SheetText sheetText(std::string_view text) {
    constexpr std::string_view separator = "=================================";
    SheetText parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\r'), text.size());
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line == separator && parts.separator.empty()) {
            parts.separator = line;
        } else if (!line.empty()) {
            (parts.separator.empty() ? parts.lines : parts.listed).emplace_back(line);
        }
    }
    return parts;
}

std::vector<PageBlock> lineBlocks(const std::vector<std::string>& lines, double width,
                                  double size) {
    std::vector<PageBlock> blocks;
    for (const std::string& text : lines) {
        addLines(blocks, MeasuredText(text), width, size, BlockParts::All);
    }
    return blocks;
}

ListText::ListText(const SheetText& text) : m_separator(text.separator) {
    std::map<std::string_view, std::int64_t> counts;
    for (const std::string& name : text.listed) {
        ++counts[name];
    }
    for (const std::string& name : text.listed) {
        const std::int64_t count = std::exchange(counts[name], 0);
        if (count > 0) {
            m_lines.emplace_back(name + (count == 1 ? "" : pieces(count)));
        }
    }
}

std::vector<PageBlock> ListText::blocks(double width, double size, std::string_view heading,
                                        BlockParts parts) const {
    if (m_lines.empty()) {
        return {};
    }
    BlockWriter writer;
    const auto write = [&](std::string_view line, const PageText& style) {
        if (parts == BlockParts::Heights) {
            writer.leaveOut(1, style.size);
        } else {
            writer.write({std::string(line)}, style);
        }
    };
    if (!heading.empty()) {
        write(heading, {.text = {}, .size = 2.1, .colour = quietInk});
    }
    write(m_separator,
          fittedText(m_separator, {.text = {}, .size = size, .colour = quietInk}, width, 1));
    writer.block.staysWithNext = true;
    std::vector<PageBlock> blocks = {std::move(writer.block)};
    for (const MeasuredText& line : m_lines) {
        addLines(blocks, line, width, size, parts);
    }
    return blocks;
}

LegendText::LegendText(const std::vector<LegendRow>& legend, KeptTexts* kept) {
    const auto measured = [kept](std::string_view text, KeptTexts::Measure measure) {
        return kept == nullptr ? std::make_shared<const MeasuredText>(measure(text))
                               : kept->of(text, measure);
    };
    m_rows.reserve(legend.size());
    for (const LegendRow& row : legend) {
        const std::string count = row.count == 1 ? std::string() : together(pieces(row.count));
        m_rows.push_back({row.picture, measured(row.name + count, measuredName),
                          measured(particulars(row), measuredWords),
                          measured(row.rules, measuredRules)});
    }
}

PageBlock LegendText::block(const Row& row, double width, double factor, BlockParts parts) {
    constexpr double pictureSide = 8.5, nameSize = 3.1, wordSize = 2.6;
    constexpr std::size_t mostNameLines = 3, mostRulesLines = 8;
    const double side = pictureSide * factor;
    const double left = side + 2;
    BlockWriter writer(left);
    const auto write = [&](const MeasuredText& text, PageText style, std::size_t most) {
        style.size *= factor;
        if (parts == BlockParts::Heights) {
            writer.leaveOut(text.lineCount(style.size, width - left, most), style.size);
        } else {
            writer.write(text.lines(style.size, width - left, most), style);
        }
    };
    write(*row.name, {.text = {}, .size = nameSize, .font = PageFont::Bold}, mostNameLines);
    if (!row.particulars->isEmpty()) {
        write(*row.particulars, {.text = {}, .size = wordSize, .colour = quietInk}, mostNameLines);
    }
    if (!row.rules->isEmpty()) {
        write(*row.rules, {.text = {}, .size = wordSize}, mostRulesLines);
    }
    PageBlock block = std::move(writer.block);
    if (parts == BlockParts::All && (row.picture.drawing || row.picture.raster)) {
        const Box place = {0, 0.3, side, side};
        block.items.emplace_back(
            PagePicture{row.picture.drawing, row.picture.raster, place, place});
    }
    constexpr double roomBelow = 2.6;
    block.height = std::max(block.height, side + 0.3) + roomBelow * factor;
    return block;
}

std::vector<PageBlock> LegendText::blocks(double width, double factor, BlockParts parts) const {
    std::vector<PageBlock> blocks;
    blocks.reserve(m_rows.size());
    for (const Row& row : m_rows) {
        blocks.push_back(block(row, width, factor, parts));
    }
    return blocks;
}

PageBlock continuedBlock(const std::string& shipName, double width) {
    const PageText style =
        fittedText(shipName, {.text = {}, .size = 4.5, .font = PageFont::Bold}, width, 3);
    BlockWriter writer;
    writer.write({style.text}, style);
    constexpr double roomBelow = 2;
    writer.block.height += roomBelow;
    writer.block.staysWithNext = true;
    return writer.block;
}

}  // namespace fleetwright
