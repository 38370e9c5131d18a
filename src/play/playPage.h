#pragma once

#include "sheetDocument.h"

#include <cstddef>
#include <string>
#include <vector>

namespace fleetwright {

class PictureEncoder;

/// A ship on the table.
struct PlayShip {
    std::string name;
    std::string notes;      ///< of the one who owns it
    std::size_t sheet = 0;  ///< of the sheets of its fleet
};

/// A fleet on the table. Ships of one design share a sheet.
struct PlayFleet {
    std::string name;
    std::string player;
    std::string notes;
    std::vector<VectorSheet> sheets;
    std::vector<PlayShip> ships;
};

/// An HTML file by which a fleet is played: each ship's sheet, on which damage and systems are
/// marked. It asks the network for nothing, and its content security policy forbids all else. The
/// texts of the fleet are in it as data alone. The same bytes for the same fleet. Pictures without
/// a drawing are in it as PNG files, which `encoder` makes. Throws Error, also for a fleet of no
/// ship.
std::string playPage(const PlayFleet& fleet, PictureEncoder& encoder);

}  // namespace fleetwright
