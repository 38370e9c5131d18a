#include "wholeNumber.h"

#include "checkedArithmetic.h"
#include "text.h"

#include <algorithm>
#include <limits>
#include <string>

namespace fleetwright {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

std::string_view takeDigits(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

/// Whether a number with the whole part `whole` and these digits behind the point is nearer to
/// the next whole number away from zero. Decided on the digits, however many there are.
bool roundsAwayFromZero(std::int64_t whole, std::string_view fraction) {
    if (fraction.empty() || fraction.front() < '5') {
        return false;
    }
    const bool isTie =
        fraction.front() == '5' && fraction.find_first_not_of('0', 1) == std::string_view::npos;
    return !isTie || whole % 2 != 0;
}

}  // namespace

std::int32_t wholeNumber(std::string_view text) {
    std::string_view rest = trimmed(text);
    const bool isNegative = rest.starts_with('-');
    if (isNegative || rest.starts_with('+')) {
        rest.remove_prefix(1);
    }
    const std::string_view whole = takeDigits(rest);
    std::string_view fraction;
    if (rest.starts_with('.')) {
        rest.remove_prefix(1);
        fraction = takeDigits(rest);
    }
    if (!rest.empty() || (whole.empty() && fraction.empty())) {
        throw NotANumberError(std::string(trimmed(text)));
    }

    constexpr std::int64_t outside = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 2;
    std::int64_t number = 0;
    for (const char digit : whole) {
        number = std::min(number * 10 + (digit - '0'), outside);
    }
    if (roundsAwayFromZero(number, fraction)) {
        ++number;
    }
    return narrow<std::int32_t>(isNegative ? -number : number);
}

}  // namespace fleetwright
