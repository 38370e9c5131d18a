#include "pathSteps.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace fleetwright {

namespace {

bool skipGaps(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of(" ,\t\r\n"), path.size()));
    return !path.empty();
}

bool takeNumber(std::string_view& path, double& number) {
    skipGaps(path);
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
