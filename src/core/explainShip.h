#pragma once

#include <cstdint>
#include <string>
#include <string_view>
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

/// An explanation as lines of text: each term with its value in front, and the figure last.
std::string textOf(const Explanation& explanation);

/// What a system is on this ship: what so many pieces weigh and cost, by which formulas and which
/// values of the ship, its arcs in words, and how it is played. Nothing for a name that the ship's
/// catalogue does not have.
std::string describeSystem(ShipClass& ship, std::string_view name, std::int32_t amount);

/// Explains cost, damage points and mass left, in this order.
std::vector<Explanation> explainShip(ShipClass& ship);

}  // namespace fleetwright
