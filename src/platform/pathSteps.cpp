#include "pathSteps.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>

namespace fleetwright {

namespace {

bool isGap(char c) {
    return c == ' ' || c == ',' || c == '\t' || c == '\r' || c == '\n';
}

bool skipGaps(std::string_view& path) {
    const auto* const next = std::find_if_not(path.begin(), path.end(), isGap);
    path.remove_prefix(static_cast<std::size_t>(next - path.begin()));
    return !path.empty();
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Takes a number of few digits, as nearly all are; there are many. Both whole numbers are exact,
/// so that the quotient is what the general way finds. Nothing is taken of other numbers.
bool takeShortNumber(std::string_view& path, double& number) {
    constexpr std::array<double, 7> powers = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
    const char* at = path.data();
    const char* const end = at + std::min<std::size_t>(path.size(), 15);
    const bool isNegative = at != end && *at == '-';
    at += isNegative ? 1 : 0;
    std::int64_t digits = 0;
    const char* const start = at;
    for (; at != end && isDigit(*at); ++at) {
        digits = digits * 10 + (*at - '0');
    }
    std::size_t decimals = 0;
    if (at != start && at != end && *at == '.') {
        for (++at; at != end && isDigit(*at); ++at, ++decimals) {
            digits = digits * 10 + (*at - '0');
        }
    }
    // One more character stands there, unless the path ends, which tells that the number does.
    if (at == start || decimals >= powers.size() ||
        (at == end && end != path.data() + path.size()) ||
        (at != end && (*at == 'e' || *at == 'E'))) {
        return false;
    }
    const double size = static_cast<double>(digits) / powers[decimals];
    number = isNegative ? -size : size;
    path.remove_prefix(static_cast<std::size_t>(at - path.data()));
    return true;
}

bool takeNumber(std::string_view& path, double& number) {
    skipGaps(path);
    if (takeShortNumber(path, number)) {
        return true;
    }
    const auto read = std::from_chars(path.data(), path.data() + path.size(), number);
    path.remove_prefix(static_cast<std::size_t>(read.ptr - path.data()));
    return read.ec == std::errc();
}

}  // namespace

std::optional<PathStep> takePathStep(std::string_view& path) {
    if (!skipGaps(path)) {
        return std::nullopt;
    }
    PathStep step;
    step.command = path.front();
    path.remove_prefix(1);
    std::size_t points = 0;
    switch (step.command) {
    case 'Z':
        break;
    case 'M':
    case 'L':
        points = 1;
        break;
    case 'C':
        points = 3;
        break;
    default:
        return std::nullopt;
    }
    for (std::size_t i = 0; i < points; ++i) {
        if (!takeNumber(path, step.points[i].x) || !takeNumber(path, step.points[i].y)) {
            return std::nullopt;
        }
    }
    return step;
}

}  // namespace fleetwright
