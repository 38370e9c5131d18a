#include "pageTexts.h"

#include "text.h"

#include <algorithm>
#include <cstddef>

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

/// Cuts the next word off a text, without the blanks behind it.
std::string_view nextWord(std::string_view& text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(text.find_first_not_of(' ', end), text.size()));
    return word;
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

std::vector<std::string> wrappedText(std::string_view text, const PageText& style, double width,
                                     std::size_t most) {
    const std::string shown = shownText(text, text.size());
    if (widthIn(style, shown) <= width) {
        return {shown};
    }
    std::vector<std::string> lines(1);
    double used = 0;
    const double blank = widthIn(style, " ");
    for (std::string_view rest = shown; !rest.empty() && lines.size() <= most;) {
        std::string_view word = nextWord(rest);
        double wordWidth = widthIn(style, word);
        if (!lines.back().empty() && used + blank + wordWidth <= width) {
            lines.back() += ' ';
            used += blank;
        } else if (!lines.back().empty()) {
            lines.emplace_back();
            used = 0;
        }
        while (wordWidth > width && lines.size() <= most) {
            const std::size_t bytes = fittingBytes(word, style, width);
            lines.back() = word.substr(0, bytes);
            // Not measured anew, since a stranger's word can have any length.
            wordWidth -= widthIn(style, lines.back());
            lines.emplace_back();
            word.remove_prefix(bytes);
        }
        lines.back() += word;
        used += wordWidth;
    }
    if (lines.size() > 1 && lines.back().empty()) {
        lines.pop_back();
    }
    if (lines.size() > most) {
        lines.resize(most);
        lines.back() = cutText(lines.back(), style, width);
    }
    return lines;
}

}  // namespace fleetwright
