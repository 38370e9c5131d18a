#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace fleetwright {

class ShipClass;

/// What one figure of a ship is made of.
struct Explanation {
    struct Term {
        std::int64_t value;
        std::string text;
    };

    std::string figure;  ///< "Cost", "Damage points" or "Mass left"
    std::vector<Term> terms;
    std::int32_t sum;  ///< the figure itself, which the terms add up to
};

/// Explains cost, damage points and mass left, in this order.
std::vector<Explanation> explainShip(ShipClass& ship);

}  // namespace fleetwright
