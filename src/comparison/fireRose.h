#pragma once

#include "Drawing.h"
#include "FirePower.h"

#include <cstdint>
#include <initializer_list>

namespace fleetwright {

/// By what the sectors of a rose are measured.
enum class RoseOf { Weapons, Points };

/// The most that one direction of any of these has: by it their roses have one scale. At least 1.
std::int64_t fullSectorOf(std::initializer_list<const FirePower*> ships, RoseOf measure);

/// How far a sector reaches from the middle of a rose, in sides of the picture.
double sectorReach(std::int64_t value, std::int64_t full);

/// Fire power as a rose in black and greys: the bow is up, and the area of a sector, which is
/// filled with this colour, is to that of a quarter of the circle as its measure is to `full`.
Drawing fireRose(const FirePower& power, RoseOf measure, std::int64_t full,
                 std::uint32_t fill = 0x808080);

}  // namespace fleetwright
