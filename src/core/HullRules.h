#pragma once

// The design rules of hulls: what mass, hull type, armor, streamlining, FTL drive and thrust cost
// and give. Systems are not rules but data; see Catalogue.h.

#include <cstdint>

namespace fleetwright {

/// Hull type codes, as in ship files and formulas.
enum HullType : std::int32_t {
    Warship = 1,
    Merchant = 2,
    QShip = 3,
    Starbase = 4,
    SpaceStation = 5,
    QSpaceStation = 6
};

/// FTL drive codes. The code counts as a number: a drive costs mass times code.
enum FtlDrive : std::int32_t { NoDrive = 0, NormalDrive = 1, TugDrive = 3 };

/// Bounds that the program holds a design to; AutoMass and ship files can go beyond them.
inline constexpr std::int32_t smallestMass = 2, mostThrust = 8;

/// The highest levels of armor and of streamlining, from 0 on.
inline constexpr std::int32_t mostArmor = 2, mostStreamline = 2;

/// The largest masses of the first two ship classes and of the third; above that, every 50 mass
/// units from 100 on count.
inline constexpr std::int32_t escortMass = 18, cruiserMass = 36, capitalMass = 100;

/// What the hull of a design is made of.
struct HullDesign {
    std::int32_t mass = smallestMass;  ///< mass units
    std::int32_t hullType = Warship;
    std::int32_t armor = 0;       ///< level 0 to 2
    std::int32_t streamline = 0;  ///< level: 0 none, 1 partial, 2 full
    std::int32_t ftl = NormalDrive;
    std::int32_t thrust = 2;  ///< 0 to 8; ship files can bring others

    friend bool operator==(const HullDesign&, const HullDesign&) = default;
};

/// What follows from a hull alone. Costs in points, masses in mass units.
struct HullFigures {
    HullDesign design;  ///< the hull
    std::int32_t hullCost = 0;
    std::int32_t ftlCost = 0;
    std::int32_t thrustCost = 0;
    std::int32_t cost = 0;      ///< the three costs together
    std::int32_t freeMass = 0;  ///< what the hull leaves for systems
    std::int32_t damagePoints = 0;
    std::int32_t damageRows = 0;
    std::int32_t damageControlParties = 0;
    std::int32_t fireControls = 0;

    friend bool operator==(const HullFigures&, const HullFigures&) = default;
};

/// Works the figures of a hull out. An unknown hull type has no hull cost, damage points or
/// free mass. Throws OverflowError when a figure leaves 32 bits.
HullFigures hullFigures(const HullDesign& design);

/// The part of its mass that a hull leaves for systems: 0.1, 0.5 or 0.75; 0 for an unknown type.
double freeMassFraction(std::int32_t hullType, std::int32_t ftl);

/// Whether systems cannot share this hull with a cloak: merchants and space stations.
bool isMerchantType(std::int32_t hullType);

/// Whether this hull neither moves nor is streamlined: starbases and both space stations.
bool isBase(std::int32_t hullType);

/// The rounding of the game's fractions; see roundUpWhole. Throws OverflowError outside 32 bits.
std::int32_t roundUp(double x);

}  // namespace fleetwright
