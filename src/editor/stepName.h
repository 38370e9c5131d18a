#pragma once

#include "DesignMoment.h"

#include <string>

namespace fleetwright {

/// What a step has done to a design, in words for a menu: "6 x Flak Thrower (F)", "Thrust 4",
/// "Remove 2 x Gun, Mass 24". It is read from the difference alone. What only follows from a change
/// of the hull or from AutoMass is not named, and of many changes the first few are.
std::string stepName(const DesignMoment& before, const DesignMoment& after);

}  // namespace fleetwright
