#pragma once

#include "SheetLists.h"

#include <string>

namespace fleetwright {

class SSDMap;
class Sheet;
struct SheetImages;
class ShipClass;

/// What a drawing reads of the ship: its figures as the controls of the main window show them at
/// that moment, and the rest from the ship itself.
struct SheetShip {
    std::string txtDP;       ///< damage points
    std::string txtDCP;      ///< number of damage control parties
    std::string txtFireCon;  ///< number of fire controls
    std::string txtShipName;
    std::string txtDesigner;
    std::string txtCost;
    ShipClass& ship;
};

/// The same of a ship that no window shows.
SheetShip sheetShipOf(ShipClass& ship);

/// Draws a ship's sheet. The sheet shows the map's outline; the lists are those of this map and
/// ship, and are empty afterwards. Pastes the pictures at the map's points, covers the points that
/// the ship does not use, and adds a block of text below the outline.
///
/// Throws Error: a picture is missing, the map has too few points for the damage control parties
/// or fire controls, a figure is no 16-bit number. The sheet and the lists are then left half done.
void drawSSD(Sheet& sheet, const SheetImages& images, const SSDMap& map, SheetLists& lists,
             const SheetShip& ship);

}  // namespace fleetwright
