#include "SSDMapLine.h"

#include "Error.h"
#include "checkedArithmetic.h"
#include "strfcns.h"
#include "text.h"
#include "wholeNumber.h"

#include <algorithm>

namespace fleetwright {

namespace {

/// Whether a text is this word of capitals, without regard to case. Maps are many at the start, so
/// that no line is copied for it.
bool isInCapitals(std::string_view text, std::string_view word) {
    return std::equal(text.begin(), text.end(), word.begin(), word.end(), [](char a, char b) {
        return a == b || (a >= 'a' && a <= 'z' && a - 'a' + 'A' == b);
    });
}

SSDPoint parsePoint(std::string_view value) {
    const std::string_view inside = withoutEnds(value);
    const std::size_t comma = inside.find(',');
    const std::string_view y =
        comma == std::string_view::npos ? std::string_view() : inside.substr(comma + 1);
    return {.iPntX = mapNumber(inside.substr(0, comma)), .iPntY = mapNumber(y)};
}

SSDPoint parseWeapPoint(std::string_view value) {
    LineCutter cutter(withoutEnds(value));
    SSDPoint point;
    point.iPntX = mapNumber(cutter.next(','));
    point.iPntY = mapNumber(cutter.next(','));
    point.sArc = toCapitals(trimmed(cutter.next(',')));
    return point;
}

}  // namespace

MapKeyword mapKeyword(std::string_view text) {
    for (const auto& [keyword, word] : mapKeywords) {
        if (isInCapitals(text, word)) {
            return keyword;
        }
    }
    return MapKeyword::Unknown;
}

bool SSDMapLines::next(SSDMapLine& line) {
    std::string_view text;
    do {
        if (!m_lines.next(text)) {
            return false;
        }
    } while (text.empty() || text.front() == '#');
    const std::size_t colon = text.find(':');
    line.word = trimmed(text.substr(0, colon));
    line.keyword = mapKeyword(line.word);
    line.value =
        colon == std::string_view::npos ? std::string_view() : trimmed(text.substr(colon + 1));
    line.number = m_lines.lineNumber();
    return true;
}

SSDPoint mapPoint(const SSDMapLine& line) {
    return line.keyword == MapKeyword::Weap ? parseWeapPoint(line.value) : parsePoint(line.value);
}

std::int16_t mapNumber(std::string_view text) {
    return narrow<std::int16_t>(wholeNumber(text));
}

std::string_view withoutEnds(std::string_view value) {
    if (value.empty() || characterLength(value) == value.size()) {
        throw Error(quote(value) + " is too short for a point");
    }
    value.remove_prefix(characterLength(value));
    value.remove_suffix(lastCharacter(value).size());
    return value;
}

}  // namespace fleetwright
