#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace fleetwright {

class ShipClass;

/// What of a ship's weapons bears in each direction. Weapons are the systems with fields of fire
/// that stand under one of the roots BEAM, HEAVY and ALIEN of the catalogue. One that bears in
/// several directions counts in each of them, whole.
struct FirePower {
    struct Sector {
        std::int64_t weapons = 0;
        std::int64_t points = 0;  ///< what they cost

        friend bool operator==(const Sector&, const Sector&) = default;
    };
    /// The directions clockwise, as they are named.
    static constexpr std::array<std::string_view, 4> names = {"fore", "starboard", "aft", "port"};

    std::array<Sector, names.size()> sectors;  ///< one for each direction

    friend bool operator==(const FirePower&, const FirePower&) = default;
};

/// That of a ship with the catalogue that it has its records from.
FirePower firePowerOf(ShipClass& ship);

/// It in one sentence, as "Fore 3 weapons of 18 points, aft 1 weapon of 5 points."
std::string wordsOf(const FirePower& power);

}  // namespace fleetwright
