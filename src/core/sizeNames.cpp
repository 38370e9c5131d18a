#include "sizeNames.h"

#include "HullRules.h"

#include <array>

namespace fleetwright {

namespace {

struct SizeName {
    std::int32_t largestMass;
    std::string_view name;
};

template <std::size_t Size>
std::string_view nameOf(std::int32_t mass, const std::array<SizeName, Size>& names,
                        std::string_view nameAbove) {
    for (const SizeName& entry : names) {
        if (mass <= entry.largestMass) {
            return entry.name;
        }
    }
    return nameAbove;
}

}  // namespace

std::string_view classOf(std::int32_t mass) {
    static constexpr std::array<SizeName, 3> names = {
        {{escortMass, "Escort"}, {cruiserMass, "Cruiser"}, {capitalMass, "Capital"}}};
    return nameOf(mass, names, "Supership");
}

std::string_view designationOf(std::int32_t mass) {
    static constexpr std::array<SizeName, 12> names = {{{4, "Scout"},
                                                        {6, "Corvette"},
                                                        {10, "Frigate"},
                                                        {14, "Destroyer"},
                                                        {18, "Super Destroyer"},
                                                        {22, "Light Cruiser"},
                                                        {26, "Escort Cruiser"},
                                                        {36, "Heavy Cruiser"},
                                                        {40, "Battle Cruiser"},
                                                        {48, "BattleShip"},
                                                        {70, "BattleDreadnought"},
                                                        {100, "SuperDreadnought"}}};
    constexpr std::int32_t courierMass = 2;
    return mass == courierMass ? "Courier" : nameOf(mass, names, "SuperShip");
}

}  // namespace fleetwright
