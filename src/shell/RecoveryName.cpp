#include "RecoveryName.h"

#include "paths.h"
#include "text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <tuple>

namespace fleetwright {

namespace {

/// Stands in front of how large the design is.
std::string_view beforeMass(RecoveryKind kind) {
    return kind == RecoveryKind::Fleet ? ", ships " : ", mass ";
}

constexpr std::string_view beforeTime = ", ";
constexpr std::string_view beforeNumber = " #";

/// The number that a text is, written as this program writes numbers; nothing for any other text.
template <typename Number>
std::optional<Number> numberIn(std::string_view text) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && std::to_string(number) == text ? std::optional(number)
                                                                  : std::nullopt;
}

/// Cuts the text behind the last `mark` off; nothing, and no cut, if there is no such mark.
std::optional<std::string_view> cutOff(std::string_view& text, std::string_view mark) {
    const std::size_t at = text.rfind(mark);
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view behind = text.substr(at + mark.size());
    text = text.substr(0, at);
    return behind;
}

/// A name without the " (2)" that it has got because there was one like it.
std::string_view withoutCount(std::string_view text) {
    std::string_view rest = text;
    std::string_view count = cutOff(rest, " (").value_or("");
    return count.ends_with(')') && numberIn<int>(count.substr(0, count.size() - 1)) ? rest : text;
}

/// Whether a text is a time as older names have it.
bool isTime(std::string_view text) {
    constexpr std::string_view pattern = "0000-00-00 00.00.00";
    return std::ranges::equal(text, pattern, [](char c, char wanted) {
        return wanted == '0' ? c >= '0' && c <= '9' : c == wanted;
    });
}

/// What a name of before there were numbers says.
RecoveryName olderName(std::string_view text, RecoveryKind kind) {
    constexpr std::size_t timeLength = 19;
    const std::size_t shipLength = text.size() - std::min(text.size(), timeLength + 1);
    if (shipLength > 0 && text[shipLength] == ' ' && isTime(text.substr(shipLength + 1))) {
        return {.ship = std::string(text.substr(0, shipLength)),
                .mass = {},
                .time = std::string(text.substr(shipLength + 1)),
                .kind = kind};
    }
    return {.ship = std::string(text), .mass = {}, .time = {}, .kind = kind};
}

}  // namespace

RecoveryName RecoveryName::of(std::string_view text, RecoveryKind kind) {
    constexpr std::uint64_t mostNumber = 1'000'000'000'000;  // so that others can follow it
    std::string_view rest = withoutCount(text);
    const auto number = numberIn<std::uint64_t>(cutOff(rest, beforeNumber).value_or(""));
    const auto time = cutOff(rest, beforeTime);
    const auto mass = numberIn<std::int32_t>(cutOff(rest, beforeMass(kind)).value_or(""));
    if (!number || *number == 0 || *number > mostNumber || !time || !mass || rest.empty()) {
        return olderName(withoutCount(text), kind);
    }
    return {.ship = std::string(rest),
            .mass = mass,
            .time = std::string(*time),
            .number = *number,
            .kind = kind};
}

std::string RecoveryName::text() const {
    std::string name = fileNameOf(ship);
    if (mass) {
        name.append(beforeMass(kind)).append(std::to_string(*mass));
    }
    return name.append(beforeTime).append(time).append(beforeNumber).append(std::to_string(number));
}

bool RecoveryName::isNewerThan(const RecoveryName& other) const {
    // Where neither tells, they stand in the order of the alphabet.
    return std::tie(number, time, other.ship) > std::tie(other.number, other.time, ship);
}

}  // namespace fleetwright
