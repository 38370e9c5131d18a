#include "svgText.h"

#include "text.h"

#include <algorithm>
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

/// Whether a byte is a character that stands for itself.
bool isPlain(char byte) {
    return byte >= ' ' && byte < '\x7F' && byte != '&' && byte != '<' && byte != '>' && byte != '"';
}

void addNumber(std::string& text, double value) {
    constexpr int decimals = 4;
    constexpr double most = 1e9;  // no page comes near that
    if (!(std::fabs(value) < most)) {
        text += '0';
        return;
    }
    char buffer[32];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    std::string_view number(buffer, static_cast<std::size_t>(end.ptr - buffer));
    number = number.substr(0, number.find_last_not_of('0') + 1);
    if (number.ends_with('.')) {
        number.remove_suffix(1);
    }
    text += number == "-0" ? "0" : number;
}

}  // namespace

std::string svgNumber(double value) {
    std::string text;
    addNumber(text, value);
    return text;
}

std::string svgColour(std::uint32_t colour) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) {
        text += digits[colour >> static_cast<unsigned>(shift) & 0xFU];
    }
    return text;
}

std::string svgText(std::string_view text) {
    // As most texts are, and all paths, of which there are many.
    if (std::all_of(text.begin(), text.end(), isPlain)) {
        return std::string(text);
    }
    std::string written;
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
    return written;
}

SvgTag& SvgTag::set(std::string_view name, std::string_view value) {
    ((((m_text += ' ') += name) += "=\"") += value) += '"';
    return *this;
}

SvgTag& SvgTag::set(std::string_view name, double value) {
    ((m_text += ' ') += name) += "=\"";
    addNumber(m_text, value);
    m_text += '"';
    return *this;
}

SvgTag& SvgTag::set(const Box& box) {
    return set("x", box.x).set("y", box.y).set("width", box.width).set("height", box.height);
}

SvgTag& SvgTag::setPaint(std::string_view name, const std::optional<std::uint32_t>& colour) {
    return set(name, colour ? svgColour(*colour) : "none");
}

}  // namespace fleetwright
