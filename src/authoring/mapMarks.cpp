#include "mapMarks.h"

#include <algorithm>

namespace fleetwright {

std::string_view markKey(std::uint32_t colour) {
    const auto* const mark = std::find_if(mapMarks.begin(), mapMarks.end(),
                                          [&](const MapMark& m) { return m.colour == colour; });
    return mark->key;
}

}  // namespace fleetwright
