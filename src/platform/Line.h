#pragma once

#include "Control.h"

namespace fleetwright {

/// A line that parts what stands above it from what stands below.
class Line : public Control {
public:
    Line(Container& container, ControlDesign design) : Control(&container, std::move(design)) {}
};

}  // namespace fleetwright
