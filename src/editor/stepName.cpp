#include "stepName.h"

#include "HullRules.h"
#include "designWords.h"
#include "text.h"

#include <cstdint>
#include <vector>

namespace fleetwright {

namespace {

/// A name in a menu: of a long one the ends.
std::string shortened(const std::string& name) {
    constexpr std::size_t most = 40;
    return shownText(name, most);
}

std::int32_t amountOfRecord(const ShipState& ship, std::size_t record) {
    for (const auto& [each, amount] : ship.amounts) {
        if (each == record) {
            return amount;
        }
    }
    return 0;
}

/// "6 x Gun" of what has come, "Remove 6 x Gun" of what is gone.
void nameSystems(const DesignMoment& before, const DesignMoment& after,
                 std::vector<std::string>& parts) {
    const auto name = [&](std::size_t record, std::int64_t difference) {
        const auto& lines = after.catalogue->lines();
        if (difference != 0 && record < lines.size()) {
            parts.push_back((difference < 0 ? "Remove " : "") +
                            std::to_string(difference < 0 ? -difference : difference) + " x " +
                            shortened(std::string(lines[record].name)));
        }
    };
    for (const auto& [record, amount] : after.ship.amounts) {
        name(record, std::int64_t{amount} - amountOfRecord(before.ship, record));
    }
    for (const auto& [record, amount] : before.ship.amounts) {
        if (amountOfRecord(after.ship, record) == 0) {
            name(record, -std::int64_t{amount});
        }
    }
}

void nameHull(const ShipState& before, const ShipState& after, std::vector<std::string>& parts) {
    const HullDesign &was = before.hull, &is = after.hull;
    const bool isHullOther = was.hullType != is.hullType;
    if (isHullOther) {
        parts.push_back(wordOf(hullLine(is.hullType), "Other hull"));
    }
    if (was.armor != is.armor) {
        parts.push_back("Armor " + wordOf(armorLine(is.armor), "None"));
    }
    if (isHullOther && isBase(is.hullType)) {
        return;
    }
    if (was.streamline != is.streamline) {
        parts.push_back("Streamlining " + wordOf(streamlineLine(is.streamline), "None"));
    }
    if (was.ftl != is.ftl) {
        parts.push_back("FTL " + wordOf(ftlLine(is.ftl), "Other"));
    }
    if (was.thrust != is.thrust) {
        parts.push_back("Thrust " + std::to_string(is.thrust));
    }
}

}  // namespace

std::string stepName(const DesignMoment& before, const DesignMoment& after) {
    std::vector<std::string> parts;
    if (before.ship.g_bAutoMass != after.ship.g_bAutoMass ||
        before.isAutoMassMarked != after.isAutoMassMarked) {
        parts.emplace_back(after.isAutoMassMarked ? "AutoMass On" : "AutoMass Off");
    }
    nameSystems(before, after, parts);
    nameHull(before.ship, after.ship, parts);
    const bool isFitted = after.ship.g_bAutoMass && !parts.empty();
    if (before.ship.hull.mass != after.ship.hull.mass && !isFitted) {
        parts.push_back("Mass " + std::to_string(after.ship.hull.mass));
    }
    if (before.ship.g_sShipName != after.ship.g_sShipName) {
        parts.push_back("Ship Name " + shortened(after.ship.g_sShipName));
    }
    if (before.ship.g_sDesignerName != after.ship.g_sDesignerName) {
        parts.push_back("Designer " + shortened(after.ship.g_sDesignerName));
    }
    if (parts.empty()) {
        return before.rows == after.rows ? "Change" : "Order of Systems";
    }
    constexpr std::size_t most = 3;
    std::string text;
    for (std::size_t i = 0; i < parts.size() && i < most; ++i) {
        text += (i == 0 ? "" : ", ") + parts[i];
    }
    return parts.size() > most ? text + "..." : text;
}

}  // namespace fleetwright
