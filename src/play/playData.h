#pragma once

#include "playPage.h"

#include <string>
#include <vector>

namespace fleetwright {

class SvgPictures;

/// A sheet's drawing, cut to what has ink of it.
struct PlayDrawing {
    Box shown;        ///< in pixels of the outline
    std::string svg;  ///< an element, one unit a pixel
};

/// Throws Error.
PlayDrawing playDrawing(const VectorSheet& sheet, SvgPictures& pictures);

/// All that the page knows of a fleet, as JSON that can stand inside of an element "script".
/// Throws Error.
std::string playData(const PlayFleet& fleet, const std::vector<PlayDrawing>& drawings,
                     SvgPictures& pictures);

}  // namespace fleetwright
