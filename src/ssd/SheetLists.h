#pragma once

// What a drawing works through: the ship's systems, and the points of the map that are still free.

#include "ListView.h"

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class SSDMap;
class ShipClass;

/// Numbers of points of a map.
using PointList = std::deque<std::int16_t>;

/// The working lists of one sheet. A full drawing leaves all of them empty.
struct SheetLists {
    /// A system's name for each piece of it aboard.
    std::vector<std::string> lstShipWeap;
    // The weapon points of each arc, ascending. A point of another arc is in none of them.
    PointList lstWeaponsF;
    PointList lstWeaponsP;
    PointList lstWeaponsS;
    PointList lstWeaponsA;
    PointList lstWeaponsB;
    // All points of their kind, descending.
    PointList lstFirecons;
    PointList lstDCP;

    friend bool operator==(const SheetLists&, const SheetLists&) = default;

    /// Fills `lstShipWeap` from the list of systems aboard: the key of a row is the system's name,
    /// the second column the count. Returns how many pieces are no damage control parties. Throws
    /// NotANumberError or OverflowError for a count that is no 16-bit number.
    std::int32_t fillShipWeap(const std::vector<ListView::Row>& lvCurrentWeapons);

    /// Fills the lists of points anew.
    void fillPoints(const SSDMap& map);

    /// Takes the point on which a system goes: the lowest one that is free in the first of its
    /// arcs that has any, and point 0 if there is none.
    std::int16_t pickWeapPoint(const ShipClass& ship, std::string_view name);

    /// The list of an arc; nullptr for another letter.
    PointList* weaponsIn(char arc);
};

}  // namespace fleetwright
