#include "text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace fleetwright {

namespace {

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Length of the well-formed character at the start of `text`, 0 if there is none.
std::size_t wellFormedLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) {
        return 1;
    }
    std::size_t length = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
    }
    if (length == 0 || text.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if (!isContinuation(text[i])) {
            return 0;
        }
    }
    // The second byte rules out overlong forms, surrogates and what lies above U+10FFFF.
    const auto second = static_cast<unsigned char>(text[1]);
    const bool outside = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
                         (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
    return outside ? 0 : length;
}

void appendCharacter(std::string& text, std::uint32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0U | (character >> 6U));
        text += static_cast<char>(0x80U | (character & 0x3FU));
    } else {
        text += static_cast<char>(0xE0U | (character >> 12U));
        text += static_cast<char>(0x80U | ((character >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (character & 0x3FU));
    }
}

/// The characters of the bytes 0x80 to 0x9F; all other bytes are their own code points.
constexpr std::array<std::uint16_t, 32> windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// A letter of Windows-1252 that is not of ASCII.
struct Letter {
    std::string_view small;
    std::string_view capital;
};

constexpr std::array<Letter, 34> letters = {{
    {"à", "À"}, {"á", "Á"}, {"â", "Â"}, {"ã", "Ã"}, {"ä", "Ä"}, {"å", "Å"}, {"æ", "Æ"},
    {"ç", "Ç"}, {"è", "È"}, {"é", "É"}, {"ê", "Ê"}, {"ë", "Ë"}, {"ì", "Ì"}, {"í", "Í"},
    {"î", "Î"}, {"ï", "Ï"}, {"ð", "Ð"}, {"ñ", "Ñ"}, {"ò", "Ò"}, {"ó", "Ó"}, {"ô", "Ô"},
    {"õ", "Õ"}, {"ö", "Ö"}, {"ø", "Ø"}, {"ù", "Ù"}, {"ú", "Ú"}, {"û", "Û"}, {"ü", "Ü"},
    {"ý", "Ý"}, {"þ", "Þ"}, {"ÿ", "Ÿ"}, {"š", "Š"}, {"œ", "Œ"}, {"ž", "Ž"},
}};

/// `text` with letters of one case as they are in the other. `firstOfAscii` is the "a" of the
/// former.
std::string changeCase(std::string_view text, char firstOfAscii, std::string_view Letter::* from,
                       std::string_view Letter::* to) {
    constexpr unsigned char caseBit = 0x20;
    std::string changed(text);
    bool areAllAscii = true;
    for (char& c : changed) {
        const bool isFound = c >= firstOfAscii && c <= firstOfAscii + ('z' - 'a');
        areAllAscii &= static_cast<unsigned char>(c) <= '\x7F';
        c = isFound ? static_cast<char>(c ^ caseBit) : c;
    }
    for (std::size_t at = 0; at < changed.size() && !areAllAscii;) {
        const std::string_view rest = std::string_view(changed).substr(at);
        const std::string_view character = rest.substr(0, characterLength(rest));
        const auto found = std::find_if(letters.begin(), letters.end(), [&](const Letter& letter) {
            return letter.*from == character;
        });
        at += character.size();
        if (found != letters.end()) {
            changed.replace(at - character.size(), character.size(), (*found).*to);
        }
    }
    return changed;
}

bool isPlain(char c) {
    return c >= ' ' && c <= '~';
}

std::string replaced(std::string_view text, bool areLines) {
    // As most texts are. All of it is looked at, which is faster than an end at the first other.
    bool areAll = true;
    for (const char c : text) {
        areAll &= isPlain(c);
    }
    if (areAll) {
        return std::string(text);
    }
    std::string shown;
    shown.reserve(text.size());
    while (!text.empty()) {
        const auto* const odd = std::find_if_not(text.begin(), text.end(), isPlain);
        shown.append(text.begin(), odd);
        text.remove_prefix(static_cast<std::size_t>(odd - text.begin()));
        if (text.empty()) {
            break;
        }
        const std::string_view character = text.substr(0, characterLength(text));
        const char32_t code = codePoint(text);
        const bool isLayout = code == U'\n' || code == U'\t' || text.starts_with("\r\n");
        if (code == U'\uFFFD' || (!onlyShows(code) && !(areLines && isLayout))) {
            shown += "\uFFFD";
        } else {
            shown += character;
        }
        text.remove_prefix(character.size());
    }
    return shown;
}

}  // namespace

std::size_t characterLength(std::string_view text) {
    const std::size_t length = wellFormedLength(text);
    return length == 0 ? 1 : length;
}

char32_t codePoint(std::string_view text) {
    const std::size_t length = wellFormedLength(text);
    if (length == 0) {
        return U'\uFFFD';
    }
    const auto lead = static_cast<unsigned char>(text.front());
    // The lead byte gives away its upper bits to say how many bytes follow.
    char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
    for (const char byte : text.substr(1, length - 1)) {
        code = (code << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return code;
}

bool isUtf8(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    while (!text.empty()) {
        // Plain ASCII, the usual case, goes eight bytes at a time.
        std::uint64_t word = 0;
        while (text.size() >= sizeof word) {
            std::memcpy(&word, text.data(), sizeof word);
            if ((word & highBits) != 0) {
                break;
            }
            text.remove_prefix(sizeof word);
        }
        if (text.empty()) {
            break;
        }
        const std::size_t length = wellFormedLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        text.remove_prefix(characterLength(text));
        ++count;
    }
    return count;
}

std::string_view lastCharacter(std::string_view text) {
    for (std::size_t length = 4; length > 1; --length) {
        if (text.size() >= length &&
            wellFormedLength(text.substr(text.size() - length)) == length) {
            return text.substr(text.size() - length);
        }
    }
    return text.empty() ? text : text.substr(text.size() - 1);
}

std::string_view withoutLastCharacters(std::string_view text, std::size_t count) {
    for (; count > 0 && !text.empty(); --count) {
        text.remove_suffix(lastCharacter(text).size());
    }
    return text;
}

std::string windows1252ToUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isTabled = code >= 0x80 && code <= 0x9F;
        appendCharacter(text, isTabled ? windows1252[code - 0x80U] : code);
    }
    return text;
}

std::string toCapitals(std::string_view text) {
    return changeCase(text, 'a', &Letter::small, &Letter::capital);
}

std::string toSmallLetters(std::string_view text) {
    return changeCase(text, 'A', &Letter::capital, &Letter::small);
}

std::string asSentence(std::string_view text) {
    const std::size_t first = text.empty() ? 0 : characterLength(text);
    return toCapitals(text.substr(0, first)).append(text.substr(first));
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool onlyShows(char32_t character) {
    const auto isWithin = [character](char32_t first, char32_t last) {
        return character >= first && character <= last;
    };
    const bool isControl = isWithin(0, 0x1F) || isWithin(0x7F, 0x9F);
    const bool endsLine = isWithin(0x2028, 0x2029);
    const bool turns = character == 0x061C || isWithin(0x200E, 0x200F) ||
                       isWithin(0x202A, 0x202E) || isWithin(0x2066, 0x2069);
    return !isControl && !endsLine && !turns;
}

bool isInvisible(char32_t character) {
    static constexpr struct {
        char32_t first;
        char32_t last;
    } ranges[] = {{0x00, 0x1F},     {0x7F, 0x9F},     {0xAD, 0xAD},     {0x200B, 0x200F},
                  {0x2028, 0x202E}, {0x2060, 0x206F}, {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF}};
    return std::any_of(std::begin(ranges), std::end(ranges), [character](const auto& range) {
        return character >= range.first && character <= range.last;
    });
}

std::string shownText(std::string_view text, std::size_t most) {
    if (text.size() <= most || characterCount(text) <= most) {
        return replaced(text, false);
    }
    const std::size_t atEnd = most / 2;
    const std::size_t end = withoutLastCharacters(text, atEnd).size();
    std::size_t begin = 0;
    for (std::size_t i = 0; i < most - atEnd; ++i) {
        begin += characterLength(text.substr(begin));
    }
    return replaced(text.substr(0, begin), false) + "…" + replaced(text.substr(end), false);
}

std::string shownLines(std::string_view text) {
    return replaced(text, true);
}

std::string quote(std::string_view piece) {
    return '"' + shownText(piece) + '"';
}

bool LineReader::next(std::string_view& line) {
    if (m_at == m_text.size()) {
        return false;
    }
    // Each kind of end is looked for once and remembered until the reading has passed it, so that
    // a text without one of them is not searched for it at every line.
    const auto find = [this](char end, std::size_t& place) {
        if (m_lineNumber == 0 || place < m_at) {
            place = std::min(m_text.find(end, m_at), m_text.size());
        }
    };
    find('\n', m_lineFeed);
    find('\r', m_carriageReturn);
    ++m_lineNumber;
    const std::size_t end = std::min(m_lineFeed, m_carriageReturn);
    line = m_text.substr(m_at, end - m_at);
    const bool isCrLf = m_lineFeed == end + 1 && m_carriageReturn == end;
    m_at = std::min(end + (isCrLf ? 2 : 1), m_text.size());
    return true;
}

}  // namespace fleetwright
