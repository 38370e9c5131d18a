#pragma once

#include "Fault.h"
#include "Raster.h"
#include "SSDMapLine.h"

#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// A line of a map that says where something is pasted on the outline.
struct MapPlace {
    MapKeyword keyword = MapKeyword::Unknown;
    int x = 0;  ///< upper left corner of what is pasted, in pixels
    int y = 0;
    std::string arc;  ///< of a weapon; as the map says it, in capitals
    int line = 0;     ///< from 1
};

/// What a map says about the places on its outline.
struct MapPlaces {
    int size = 0;                    ///< the largest ship mass; 0 without a SIZE line
    int sizeLine = 0;                ///< line of SIZE; 0 without one
    int imageLine = 0;               ///< line of IMAGE; 0 without one
    std::string image = {};          ///< the outline that it names
    std::vector<MapPlace> places;    ///< in the order of the map
    std::vector<MapKeyword> unread;  ///< of the lines whose place cannot be read
};

/// What the text of a map file says about the places. What is wrong with its lines is passed over.
MapPlaces readMapPlaces(std::string_view text);

/// What an author may not have meant about the places of a map, by line: boxes that overlap or
/// leave the outline, marks that stay to be seen, arcs without a point, lines that are missing and
/// too few points for the figures of ships of that size. What concerns no single line comes last.
/// Without an outline there is nothing to say of that.
std::vector<Fault> checkMapPlaces(const MapPlaces& map, const Raster& outline);

}  // namespace fleetwright
