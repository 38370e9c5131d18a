#include "strfcns.h"

#include "text.h"

#include <algorithm>
#include <cstddef>

namespace fleetwright {

namespace {

thread_local std::string m_sTokRest;
thread_local std::string m_sTailRest;

/// Where the delimiter that comes first stands, and how long it is; length 0 if there is none.
struct Delimiter {
    std::size_t place = 0;
    std::size_t length = 0;
};

Delimiter earliestDelimiter(std::string_view source, std::string_view delims, bool bExact) {
    constexpr char lastOfAscii = '\x7F';
    if (bExact && delims.size() == 1 && delims.front() >= '\0' && delims.front() <= lastOfAscii) {
        // No other character has such a byte in it.
        const std::size_t place = source.find(delims.front());
        return place == std::string_view::npos ? Delimiter() : Delimiter{place, 1};
    }
    for (std::size_t place = 0; place < source.size();) {
        const std::string_view character =
            source.substr(place, characterLength(source.substr(place)));
        for (std::string_view rest = delims; !rest.empty();) {
            const std::string_view delimiter = rest.substr(0, characterLength(rest));
            if (character == delimiter ||
                (!bExact && toCapitals(character) == toCapitals(delimiter))) {
                return {place, character.size()};
            }
            rest.remove_prefix(delimiter.size());
        }
        place += character.size();
    }
    return {};
}

/// The steps that the two cutters share: brings `source` and `memory` to what the cutting leaves.
Delimiter cut(std::string& source, std::string& memory, std::string_view delims, bool bExact) {
    if (source.empty()) {
        source = memory;
    }
    const Delimiter delimiter = earliestDelimiter(source, delims, bExact);
    memory = source.substr(delimiter.place + delimiter.length);
    return delimiter;
}

}  // namespace

std::string strReverse(std::string_view text) {
    std::string reversed;
    reversed.reserve(text.size());
    while (!text.empty()) {
        const std::string_view last = lastCharacter(text);
        reversed += last;
        text.remove_suffix(last.size());
    }
    return reversed;
}

std::string strTok(std::string& source, std::string_view delims, bool bExact) {
    const Delimiter delimiter = cut(source, m_sTokRest, delims, bExact);
    return delimiter.length == 0 ? m_sTokRest : source.substr(0, delimiter.place);
}

std::string strTokTail(std::string& source, std::string_view delims, bool bExact) {
    const Delimiter delimiter = cut(source, m_sTailRest, delims, bExact);
    return delimiter.length == 0 ? std::string() : m_sTailRest;
}

void leaveForStrTok(std::string_view rest) {
    m_sTokRest = rest;
}

}  // namespace fleetwright
