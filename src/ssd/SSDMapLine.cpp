#include "SSDMapLine.h"

#include "Error.h"
#include "capitals.h"
#include "checkedArithmetic.h"
#include "strfcns.h"
#include "utf8.h"
#include "wholeNumber.h"

#include <algorithm>
#include <array>
#include <utility>

namespace fleetwright {

namespace {

/// Whether a text is this word of capitals, without regard to case. Maps are many at the start, so
/// that no line is copied for it.
bool isInCapitals(std::string_view text, std::string_view word) {
    return std::equal(text.begin(), text.end(), word.begin(), word.end(), [](char a, char b) {
        return a == b || (a >= 'a' && a <= 'z' && a - 'a' + 'A' == b);
    });
}

MapKey mapKeyOf(std::string_view text) {
    static constexpr std::array<std::pair<std::string_view, MapKey>, 8> keys = {{
        {"WEAP", MapKey::Weap},
        {"DCP", MapKey::Dcp},
        {"FIRECON", MapKey::FireCon},
        {"SIZE", MapKey::Size},
        {"IMAGE", MapKey::Image},
        {"DAMROW", MapKey::DamRow},
        {"FTL", MapKey::Ftl},
        {"THRUST", MapKey::Thrust},
    }};
    for (const auto& [word, key] : keys) {
        if (isInCapitals(text, word)) {
            return key;
        }
    }
    return MapKey::Unknown;
}

}  // namespace

bool isMapComment(std::string_view line) {
    return line.empty() || line.front() == '#';
}

SSDMapLine cutMapLine(std::string_view line) {
    const std::size_t colon = line.find(':');
    SSDMapLine cut;
    cut.keyText = trimmed(line.substr(0, colon));
    cut.key = mapKeyOf(cut.keyText);
    if (colon != std::string_view::npos) {
        cut.value = trimmed(line.substr(colon + 1));
    }
    return cut;
}

std::int16_t mapNumber(std::string_view text) {
    return narrow<std::int16_t>(wholeNumber(text));
}

std::string_view withoutEnds(std::string_view value) {
    if (value.empty() || characterLength(value) == value.size()) {
        throw Error('"' + std::string(value) + "\" is too short for a point");
    }
    value.remove_prefix(characterLength(value));
    value.remove_suffix(lastCharacter(value).size());
    return value;
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

}  // namespace fleetwright
