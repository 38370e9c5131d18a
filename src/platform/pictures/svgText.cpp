#include "svgText.h"

#include "text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace fleetwright {

namespace {

/// Whether XML 1.0 knows a character.
bool isXmlCharacter(char32_t character) {
    if (character < 0x20) {
        return character == U'\t';
    }
    return (character < 0x7F || character > 0x9F) && character != 0xFFFE && character != 0xFFFF;
}

/// Which bytes are characters that stand for themselves.
constexpr auto plainBytes = [] {
    std::array<bool, 256> are{};
    for (unsigned char byte = ' '; byte < 0x7F; ++byte) {
        are[byte] = byte != '&' && byte != '<' && byte != '>' && byte != '"';
    }
    return are;
}();

bool arePlain(std::string_view text) {
    return std::ranges::all_of(
        text, [](char byte) { return plainBytes[static_cast<unsigned char>(byte)]; });
}

constexpr int decimals = 4;

/// The number as it is exactly, rounded to its decimals.
std::string exactNumber(double value) {
    char buffer[32];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    std::string_view number(buffer, static_cast<std::size_t>(end.ptr - buffer));
    number = number.substr(0, number.find_last_not_of('0') + 1);
    if (number.ends_with('.')) {
        number.remove_suffix(1);
    }
    return std::string(number == "-0" ? "0" : number);
}

/// The digits of all numbers below 100, two each.
constexpr auto pairsOfDigits = [] {
    std::array<char, 200> pairs{};
    for (std::size_t number = 0; number < 100; ++number) {
        pairs[2 * number] = static_cast<char>('0' + number / 10);
        pairs[2 * number + 1] = static_cast<char>('0' + number % 10);
    }
    return pairs;
}();

}  // namespace

void BackwardText::putPair(std::uint32_t number) {
    put({pairsOfDigits.data() + std::size_t{2} * number, 2});
}

/// Two decimals, if there are others behind them or if they are not zero.
void BackwardText::putDecimals(std::uint32_t number, bool areLast) {
    if (!areLast || number % 10 != 0) {
        putPair(number);
    } else if (number != 0) {
        put(static_cast<char>('0' + number / 10));
    }
}

void BackwardText::putRounded(std::uint32_t scaled) {
    constexpr std::uint32_t parts = 10'000;
    const std::uint32_t part = scaled % parts, last = part % 100;
    std::uint32_t whole = scaled / parts;
    if (part != 0) {
        putDecimals(last, true);
        putDecimals(part / 100, last == 0);
        put('.');
    }
    for (; whole >= 100; whole /= 100) {
        putPair(whole % 100);
    }
    if (whole >= 10) {
        putPair(whole);
    } else {
        put(static_cast<char>('0' + whole));
    }
}

void BackwardText::putNumber(double value) {
    constexpr double most = 1e9;  // no page comes near that
    if (!(std::fabs(value) < most)) {
        put('0');
        return;
    }
    // The product is off by less than a millionth: only near the middle between two results could
    // that matter.
    const double scaled = std::fabs(value) * 10'000;
    constexpr double unsure = 0.001;
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): the same, and quicker than lround
    const auto rounded = static_cast<std::int32_t>(std::min(scaled, most) + 0.5);
    if (scaled > most || std::fabs(std::fabs(scaled - rounded) - 0.5) < unsure) {
        put(exactNumber(value));
        return;
    }
    putRounded(static_cast<std::uint32_t>(rounded));
    if (value < 0 && rounded != 0) {
        put('-');
    }
}

void addSvgNumber(std::string& written, double value) {
    BackwardText text;
    text.putNumber(value);
    written += text.text();
}

std::string svgNumber(double value) {
    std::string text;
    addSvgNumber(text, value);
    return text;
}

std::string svgColour(std::uint32_t colour) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string text = "#rrggbb";
    for (std::size_t digit = text.size() - 1; digit > 0; --digit, colour >>= 4U) {
        text[digit] = digits[colour & 0xFU];
    }
    return text;
}

void addSvgText(std::string& written, std::string_view text) {
    // As most texts are, and all paths, of which there are many.
    if (arePlain(text)) {
        written += text;
        return;
    }
    while (!text.empty()) {
        const std::string_view character = text.substr(0, characterLength(text));
        const char32_t code = codePoint(text);
        text.remove_prefix(character.size());
        if (code == U'&') {
            written += "&amp;";
        } else if (code == U'<') {
            written += "&lt;";
        } else if (code == U'>') {
            written += "&gt;";
        } else if (code == U'"') {
            written += "&quot;";
        } else if (code == 0xFFFD) {
            written += "\xEF\xBF\xBD";  // also for a byte that begins no character
        } else if (isXmlCharacter(code)) {
            written += character;
        }
    }
}

std::string svgText(std::string_view text) {
    std::string written;
    addSvgText(written, text);
    return written;
}

SvgTag& SvgTag::set(std::string_view name, std::string_view value) {
    ((((m_text += ' ') += name) += "=\"") += value) += '"';
    return *this;
}

SvgTag& SvgTag::setText(std::string_view name, std::string_view text) {
    ((m_text += ' ') += name) += "=\"";
    addSvgText(m_text, text);
    m_text += '"';
    return *this;
}

SvgTag& SvgTag::set(std::string_view name, double value) {
    BackwardText attribute;
    attribute.put('"');
    attribute.putNumber(value);
    attribute.put("=\"");
    attribute.put(name);
    attribute.put(' ');
    m_text += attribute.text();
    return *this;
}

SvgTag& SvgTag::set(const Box& box) {
    return set("x", box.x).set("y", box.y).set("width", box.width).set("height", box.height);
}

SvgTag& SvgTag::setPaint(std::string_view name, const std::optional<std::uint32_t>& colour) {
    return set(name, colour ? svgColour(*colour) : "none");
}

}  // namespace fleetwright
