#pragma once

#include "Control.h"

namespace fleetwright {

/// A bordered group of controls with a caption. Option buttons in one frame exclude each other.
class Frame : public Container {
public:
    Frame(Container& container, ControlDesign design) : Container(&container, std::move(design)) {}
};

}  // namespace fleetwright
