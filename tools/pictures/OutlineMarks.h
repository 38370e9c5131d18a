#pragma once

#include "mapMarks.h"

#include <QRect>

#include <filesystem>
#include <vector>

namespace fleetwright {

/// A place on a ship outline where something will be pasted.
struct OutlineMark {
    MapKeyword keyword = MapKeyword::Unknown;  ///< of the line in a map
    char arc = 0;                              ///< of a weapon
    QRect box;                                 ///< what is pasted covers this, in pixels
};

/// The black pixels by which the mark of a damage track says the SIZE of the map; null for a mark
/// that says none.
const TrackLength* trackLength(const OutlineMark& mark);

/// What the source of an outline says about its size and its places.
struct OutlineLayout {
    QSize size;
    std::vector<OutlineMark> marks;
};

/// Reads the places from the source of an outline: the `rect` elements with a `data-mark`, which
/// is the arc of a weapon or the key of another line of a map. Throws FileError for a source whose
/// size is not in whole pixels or that has a mark of an unknown kind, size or place.
OutlineLayout readOutlineLayout(const std::filesystem::path& source);

}  // namespace fleetwright
