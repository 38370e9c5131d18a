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

}  // namespace

std::string svgNumber(double value) {
    constexpr int decimals = 4;
    constexpr double most = 1e9;  // no page comes near that
    if (!(std::fabs(value) < most)) {
        return "0";
    }
    char buffer[32];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    std::string text(buffer, end.ptr);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
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

std::string attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + '"';
}

std::string attribute(const char* name, double value) {
    return attribute(name, svgNumber(value));
}

}  // namespace fleetwright
