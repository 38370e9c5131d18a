#include "DesignModel.h"

#include "Error.h"
#include "shipWords.h"

#include <algorithm>
#include <limits>

namespace fleetwright {

DesignModel DesignModel::of(const ShipClass& ship) {
    DesignModel design;
    design.hull = ship.hullDesign();
    design.amounts.resize(static_cast<std::size_t>(ship.g_lWeapCount));
    for (const auto& [record, amount] : ship.state().amounts) {
        design.amounts[record] = amount;
    }
    design.isAutoMass = ship.g_bAutoMass;
    return design;
}

std::optional<std::string> DesignModel::figures(const ShipServices& services) const {
    ShipClass ship(services);
    ShipState state = ship.state();
    state.hull = hull;
    for (std::size_t record = 0; record < amounts.size(); ++record) {
        const std::int64_t amount = amounts[record];
        if (amount < std::numeric_limits<std::int32_t>::min() ||
            amount > std::numeric_limits<std::int32_t>::max()) {
            return std::nullopt;
        }
        if (amount != 0) {
            state.amounts.emplace_back(record, static_cast<std::int32_t>(amount));
        }
    }
    ship.restore(state);
    try {
        ship.weapChange();
    } catch (const OverflowError&) {
        return std::nullopt;
    }
    return figuresOf(ship);
}

bool DesignModel::cloakRuleRefuses(std::string_view name, std::size_t cloak) const {
    if (hull.hullType != Merchant && hull.hullType != SpaceStation) {
        return false;
    }
    const bool carriesAny =
        std::any_of(amounts.begin(), amounts.end(), [](std::int64_t amount) { return amount > 0; });
    return name == Catalogue::cloakName ? carriesAny : amounts[cloak] >= 1;
}

bool DesignModel::hasWords() const {
    return hull.hullType >= Warship && hull.hullType <= QSpaceStation &&
           (hull.ftl == NoDrive || hull.ftl == NormalDrive || hull.ftl == TugDrive);
}

std::string textOf(const DesignModel& design) {
    const HullDesign& hull = design.hull;
    std::string text = "mass " + std::to_string(hull.mass) + ", hull " +
                       std::to_string(hull.hullType) + ", armor " + std::to_string(hull.armor) +
                       ", streamline " + std::to_string(hull.streamline) + ", ftl " +
                       std::to_string(hull.ftl) + ", thrust " + std::to_string(hull.thrust) +
                       (design.isAutoMass ? ", AutoMass\n" : "\n");
    for (std::size_t record = 0; record < design.amounts.size(); ++record) {
        if (design.amounts[record] != 0) {
            text += std::to_string(record) + " x " + std::to_string(design.amounts[record]) + '\n';
        }
    }
    return text;
}

}  // namespace fleetwright
