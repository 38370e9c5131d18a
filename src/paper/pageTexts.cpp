#include "pageTexts.h"

#include "text.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace fleetwright {

namespace {

constexpr std::string_view ellipsis = "…";

double widthIn(const PageText& style, std::string_view text) {
    return textWidth(text, style.size, style.font);
}

/// How many bytes of whole characters from the start of a text fit a width; one at the least.
std::size_t fittingBytes(std::string_view text, const PageText& style, double width) {
    std::size_t bytes = 0;
    double used = 0;
    while (bytes < text.size()) {
        const std::size_t length = characterLength(text.substr(bytes));
        used += widthIn(style, text.substr(bytes, length));
        if (used > width && bytes > 0) {
            break;
        }
        bytes += length;
    }
    return bytes;
}

/// As much of a text as leaves room for "…", and that.
std::string cutText(std::string_view text, const PageText& style, double width) {
    const double room = width - widthIn(style, ellipsis);
    return std::string(text.substr(0, fittingBytes(text, style, room))) + std::string(ellipsis);
}

}  // namespace

PageText fittedText(std::string_view text, PageText style, double width, double smallest) {
    style.text = shownText(text, text.size());
    const double natural = widthIn(style, style.text);
    if (natural <= width) {
        return style;
    }
    style.size = std::max(style.size * width / natural, smallest);
    if (widthIn(style, style.text) > width) {
        style.text = cutText(style.text, style, width);
    }
    return style;
}

void putCaptioned(Page& page, std::shared_ptr<const Drawing> drawing, const Box& place,
                  std::string_view caption) {
    constexpr double size = 2.1;
    page.items.emplace_back(PagePicture{std::move(drawing), nullptr, place, place, true});
    page.items.emplace_back(PageText{.text = std::string(caption),
                                     .x = place.x + place.width / 2,
                                     .y = place.y + place.height + size * letterHeight,
                                     .size = size,
                                     .anchor = PageText::Anchor::Middle,
                                     .colour = quietInk});
}

MeasuredText::MeasuredText(std::string_view text, PageFont font)
    : m_text(shownText(text, text.size())), m_font(font), m_blank(textWidth(" ", 1, font)),
      m_width(m_blank * static_cast<double>(std::ranges::count(m_text, ' '))) {
    const std::string_view all = m_text;
    m_words.reserve(static_cast<std::size_t>(std::ranges::count(all, ' ')) + 1);
    for (std::size_t start = all.find_first_not_of(' '); start < all.size();) {
        const std::size_t end = std::min(all.find(' ', start), all.size());
        const double width = textWidth(all.substr(start, end - start), 1, font);
        m_words.push_back({start, end - start, width});
        m_width += width;
        start = all.find_first_not_of(' ', end);
    }
}

/// Hands over what stands in each line, piece by piece, up to the one behind the last that is
/// allowed. Returns how many lines those are.
template <typename Take>
std::size_t MeasuredText::breakLines(double size, double width, std::size_t most, Take take) const {
    if (m_width * size <= width) {
        take(std::size_t{0}, std::string_view(m_text));
        return 1;
    }
    const PageText style = {.text = {}, .size = size, .font = m_font};
    const double blank = m_blank * size;
    std::size_t line = 0;
    bool isEmpty = true;
    double used = 0;
    for (const Word& measured : m_words) {
        if (line >= most) {
            break;
        }
        std::string_view word = std::string_view(m_text).substr(measured.start, measured.length);
        double wordWidth = measured.width * size;
        if (!isEmpty && used + blank + wordWidth <= width) {
            take(line, std::string_view(" "));
            used += blank;
        } else if (!isEmpty) {
            ++line;
            used = 0;
        }
        while (wordWidth > width && line < most) {
            const std::string_view part = word.substr(0, fittingBytes(word, style, width));
            take(line++, part);
            // Not measured anew, since a stranger's word can have any length.
            wordWidth -= widthIn(style, part);
            word.remove_prefix(part.size());
        }
        take(line, word);
        isEmpty = word.empty();
        used += wordWidth;
    }
    return line + (isEmpty && line > 0 ? 0 : 1);
}

std::vector<std::string> MeasuredText::lines(double size, double width, std::size_t most) const {
    constexpr std::size_t usualCount = 4;
    std::vector<std::string> lines;
    lines.reserve(usualCount);
    lines.emplace_back();
    const std::size_t count =
        breakLines(size, width, most, [&lines](std::size_t line, std::string_view piece) {
            if (line == lines.size()) {
                constexpr std::size_t usualLength = 64;  // bytes
                lines.emplace_back().reserve(usualLength);
            }
            lines.back() += piece;
        });
    lines.resize(std::min(count, most));
    if (count > most) {
        lines.back() = cutText(lines.back(), {.text = {}, .size = size, .font = m_font}, width);
    }
    return lines;
}

std::size_t MeasuredText::lineCount(double size, double width, std::size_t most) const {
    return std::min(breakLines(size, width, most, [](std::size_t, std::string_view) {}), most);
}

}  // namespace fleetwright
