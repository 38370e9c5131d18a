#include "fleetWords.h"

#include "HullRules.h"

namespace fleetwright {

namespace {

LimitWords wordsFor(const std::string& about, const std::string& unit, std::int64_t most,
                    std::int64_t left) {
    std::string text =
        about + ": " + std::to_string(most - left) + " of " + std::to_string(most) + unit + ", ";
    text += left < 0 ? std::to_string(-left) + " too many" : std::to_string(left) + " left";
    return {.text = std::move(text), .isBroken = left < 0};
}

}  // namespace

std::vector<LimitWords> limitWords(const Fleet& fleet, const FleetSum& sum) {
    std::vector<LimitWords> words;
    if (sum.pointsLeft) {
        words.push_back(wordsFor("Points", "", *fleet.pointsLimit, *sum.pointsLeft));
    }
    for (std::size_t i = 0; i < sum.limitsLeft.size(); ++i) {
        const FleetLimit& limit = fleet.limits[i];
        std::string unit = limit.unit == FleetLimit::Unit::Ships ? " ship" : " point";
        unit += limit.most == 1 ? "" : "s";
        words.push_back(wordsFor(limit.kind, unit, limit.most, sum.limitsLeft[i]));
    }
    return words;
}

std::string sizeWords(const ShipFigures& ship) {
    return std::string(ship.shipClass) + ", " + std::string(ship.designation);
}

std::string thrustWord(const ShipFigures& ship) {
    return ship.thrust <= 0 ? "-" : std::to_string(ship.thrust);
}

std::string_view driveWord(const ShipFigures& ship) {
    switch (ship.ftl) {
    case NormalDrive:
        return "FTL";
    case TugDrive:
        return "Tug";
    default:
        return "-";
    }
}

}  // namespace fleetwright
