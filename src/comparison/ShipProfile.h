#pragma once

#include "FirePower.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class ShipClass;

/// What a design is held against others by, as it was at one moment.
struct ShipProfile {
    /// A name, a figure or a choice of the design.
    struct Figure {
        std::string_view key;    ///< by which `figures` prints it
        std::string_view title;  ///< what people call it
        std::string text;        ///< as it is shown
        std::int64_t number = 0;
        bool isNumber = false;  ///< whether the number means anything
        bool isAmount = false;  ///< whether more of it is more, other than with a code or a level
    };
    struct System {
        std::size_t record = 0;  ///< its place in the catalogue
        std::string name;
        std::int32_t amount = 0;
        std::int32_t mass = 0;  ///< of all pieces
        std::int32_t cost = 0;  ///< of all pieces
    };

    std::vector<Figure> figures;  ///< the same ones, in the same order, for each ship
    FirePower fire;
    std::vector<System> systems;  ///< those aboard, in the order of the catalogue
};

/// That of a ship as it is.
ShipProfile profileOf(ShipClass& ship);

}  // namespace fleetwright
