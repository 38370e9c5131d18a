#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace fleetwright {

/// A step of the path of a drawn shape. M and L have one point, C has three, Z has none.
struct PathStep {
    struct Point {
        double x = 0;
        double y = 0;
    };

    char command = 'Z';
    std::array<Point, 3> points;
};

/// Takes the next step off path data, as `DrawnShape::path` has it. Nothing at its end, and at what
/// is no such step.
std::optional<PathStep> takePathStep(std::string_view& path);

}  // namespace fleetwright
