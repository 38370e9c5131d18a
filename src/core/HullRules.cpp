#include "HullRules.h"

#include "checkedArithmetic.h"
#include "decimals.h"

#include <array>
#include <cstddef>

namespace fleetwright {

namespace {

/// What each level adds to the cost of every mass unit of the hull.
constexpr std::array<double, mostArmor + 1> armorPrices = {0.0, 0.5, 1.0};
constexpr std::array<double, mostStreamline + 1> streamlinePrices = {0.0, 0.5, 1.0};

template <std::size_t Levels>
double priceOf(const std::array<double, Levels>& prices, std::int32_t level) {
    return prices.at(static_cast<std::size_t>(level));
}

std::int32_t stepsAboveCapital(std::int32_t mass) {
    return (mass - capitalMass) / 50;
}

/// Warships and starbases have the strong hull: dearer, with twice the damage points.
bool hasStrongHull(std::int32_t hullType) {
    return hullType == Warship || hullType == Starbase;
}

std::int32_t thrustCost(const HullDesign& design) {
    const std::int32_t mass = design.mass;
    const bool isMilitary = design.hullType == Warship || design.hullType == QShip;
    if (!isMilitary && design.hullType != Merchant) {
        return 0;
    }
    if (mass > capitalMass) {
        return checkedMultiply(checkedMultiply(design.thrust, 2), mass);
    }
    if (isMilitary && mass <= escortMass) {
        return roundUp(design.thrust / 4.0 * mass);
    }
    if (isMilitary && mass <= cruiserMass) {
        return roundUp(design.thrust / 2.0 * mass);
    }
    return checkedMultiply(design.thrust, mass);
}

std::int32_t damageRows(std::int32_t mass) {
    if (mass <= escortMass) {
        return 2;
    }
    if (mass <= cruiserMass) {
        return 3;
    }
    return mass <= capitalMass ? 4 : stepsAboveCapital(mass) + 5;
}

/// Damage control parties or, with `smallest` 1, fire controls: what a ship of up to mass 6 has.
std::int32_t crewFigure(std::int32_t hullType, std::int32_t mass, std::int32_t smallest) {
    constexpr std::int32_t boatMass = 6;
    if (mass <= boatMass) {
        return smallest;
    }
    if (isMerchantType(hullType)) {
        return mass <= capitalMass ? 1 : stepsAboveCapital(mass) + 1;
    }
    if (mass <= escortMass) {
        return 1;
    }
    if (mass <= cruiserMass) {
        return 2;
    }
    return mass <= capitalMass ? 3 : stepsAboveCapital(mass) + 3;
}

}  // namespace

bool isMerchantType(std::int32_t hullType) {
    return hullType == Merchant || hullType == SpaceStation;
}

bool isBase(std::int32_t hullType) {
    return hullType == Starbase || hullType == SpaceStation || hullType == QSpaceStation;
}

double freeMassFraction(std::int32_t hullType, std::int32_t ftl) {
    switch (hullType) {
    case Warship:
    case QShip:
        return ftl == NoDrive ? 0.75 : 0.5;
    case Merchant:
    case SpaceStation:
        return 0.1;
    case Starbase:
    case QSpaceStation:
        return 0.5;
    default:
        return 0.0;
    }
}

std::int32_t roundUp(double x) {
    return roundToInt32(roundUpWhole(x));
}

HullFigures hullFigures(const HullDesign& design) {
    const std::int32_t mass = design.mass;
    HullFigures figures{.design = design};
    if (design.hullType >= Warship && design.hullType <= QSpaceStation) {
        const bool isStrong = hasStrongHull(design.hullType);
        const double base = isStrong ? 2.0 : 1.5;
        figures.hullCost = roundUp((priceOf(armorPrices, design.armor) + base +
                                    priceOf(streamlinePrices, design.streamline)) *
                                   mass);
        figures.damagePoints = roundUp(mass / (isStrong ? 2.0 : 4.0));
        figures.damageControlParties = crewFigure(design.hullType, mass, 0);
        figures.fireControls = crewFigure(design.hullType, mass, 1);
    }
    figures.ftlCost = checkedMultiply(mass, design.ftl);
    figures.thrustCost = thrustCost(design);
    figures.cost = checkedAdd(checkedAdd(figures.hullCost, figures.ftlCost), figures.thrustCost);
    figures.freeMass = roundUp(mass * freeMassFraction(design.hullType, design.ftl));
    figures.damageRows = damageRows(mass);
    return figures;
}

}  // namespace fleetwright
