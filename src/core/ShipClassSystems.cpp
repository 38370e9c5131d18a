#include "ShipClass.h"

#include "ShipClassRollback.h"
#include "checkedArithmetic.h"

#include <algorithm>

namespace fleetwright {

bool ShipClass::addWeap(std::string_view name, std::int32_t amount) {
    if (cloakRuleRefuses(name)) {
        CloakAndMerchant.raise();
        return false;
    }
    const std::int32_t index = weapNameToIndex(name);
    if (index == -1) {
        WeaponNotFound.raise();
        weapChange();
        return false;
    }
    std::int32_t& carried = m_catalogue.records()[static_cast<std::size_t>(index)].amount;
    const Rollback rollback(*this, &carried);
    carried = checkedAdd(carried, amount);
    recalcShip();
    return true;
}

/// On a merchant-type hull a cloak can only be alone. The rule looks at names, not at whether
/// pieces are added or taken away.
bool ShipClass::cloakRuleRefuses(std::string_view name) const {
    if (!isMerchantType(m_hull.hullType)) {
        return false;
    }
    const std::vector<WeapRec>& records = m_catalogue.records();
    if (name == Catalogue::cloakName) {
        return std::any_of(records.begin(), records.end(),
                           [](const WeapRec& record) { return record.amount > 0; });
    }
    const auto cloak = static_cast<std::size_t>(m_catalogue.cloakIndex());
    return cloak < records.size() && records[cloak].amount >= 1;
}

bool ShipClass::listWeap(std::int32_t& ndx, WeapRec& record) const {
    record = m_catalogue.records().at(static_cast<std::size_t>(ndx));
    ++ndx;
    return ndx < g_lWeapCount;
}

std::int32_t ShipClass::weapNameToIndex(std::string_view in_sName) const {
    const std::vector<WeapRec>& records = m_catalogue.records();
    const auto found =
        std::find_if(records.begin(), records.end(),
                     [in_sName](const WeapRec& record) { return record.name == in_sName; });
    return found == records.end() ? -1 : static_cast<std::int32_t>(found - records.begin());
}

std::int32_t ShipClass::preview(std::string_view name, std::int32_t amount,
                                std::string_view WeapRec::*formula) {
    const std::int32_t index = weapNameToIndex(name);
    if (index == -1) {
        WeaponNotFound.raise();
        return 0;
    }
    WeapRec& record = m_catalogue.records()[static_cast<std::size_t>(index)];
    return evaluate(record.*formula, m_hull, m_hullFigures.hullCost, amount);
}

std::int32_t ShipClass::previewWeapCost(std::string_view in_sWeapName, std::int32_t amount) {
    return preview(in_sWeapName, amount, &WeapRec::costform);
}

std::int32_t ShipClass::previewWeapMass(std::string_view in_sWeapName, std::int32_t amount) {
    return preview(in_sWeapName, amount, &WeapRec::massform);
}

}  // namespace fleetwright
