#include "ShipClass.h"

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
    std::int32_t& carried = amountOf(static_cast<std::size_t>(index));
    change(carried, checkedAdd(carried, amount));
    return true;
}

/// The amount of a record that is about to change.
std::int32_t& ShipClass::amountOf(std::size_t record) {
    const auto place = std::lower_bound(m_touched.begin(), m_touched.end(), record);
    if (place == m_touched.end() || *place != record) {
        m_touched.insert(place, record);
    }
    return m_catalogue.records()[record].amount;
}

/// On a merchant-type hull a cloak can only be alone. The rule looks at names, not at whether
/// pieces are added or taken away.
bool ShipClass::cloakRuleRefuses(std::string_view name) const {
    if (!isMerchantType(hull.hullType)) {
        return false;
    }
    const std::vector<WeapRec>& records = m_catalogue.records();
    if (name == Catalogue::cloakName) {
        return std::any_of(m_touched.begin(), m_touched.end(),
                           [&](std::size_t record) { return records[record].amount > 0; });
    }
    const auto cloak = static_cast<std::size_t>(m_catalogue.cloakIndex());
    return cloak < records.size() && records[cloak].amount >= 1;
}

bool ShipClass::listWeap(std::int32_t& ndx, WeapRec& record) const {
    record = m_catalogue.records().at(static_cast<std::size_t>(ndx));
    ++ndx;
    return ndx < g_lWeapCount;
}

std::vector<WeapRec> ShipClass::systemsAboard() const {
    std::vector<WeapRec> aboard;
    for (const std::size_t record : m_touched) {
        if (m_catalogue.records()[record].amount > 0) {
            aboard.push_back(m_catalogue.records()[record]);
        }
    }
    return aboard;
}

/// Names are looked up several times in a row, and mostly those of systems aboard, of which each
/// is the first of its name.
std::int32_t ShipClass::weapNameToIndex(std::string_view in_sName) const {
    const std::vector<WeapRec>& records = m_catalogue.records();
    const auto isNamed = [&](std::size_t record) { return records[record].name == in_sName; };
    if (m_lastFound < records.size() && isNamed(m_lastFound)) {
        return static_cast<std::int32_t>(m_lastFound);
    }
    const auto aboard = std::find_if(m_touched.begin(), m_touched.end(), isNamed);
    if (aboard != m_touched.end()) {
        m_lastFound = *aboard;
        return static_cast<std::int32_t>(m_lastFound);
    }
    const auto found =
        std::find_if(records.begin(), records.end(),
                     [in_sName](const WeapRec& record) { return record.name == in_sName; });
    if (found == records.end()) {
        return -1;
    }
    m_lastFound = static_cast<std::size_t>(found - records.begin());
    return static_cast<std::int32_t>(m_lastFound);
}

std::int32_t ShipClass::preview(std::string_view name, std::int32_t amount,
                                std::string_view WeapRec::* formula, const HullDesign& design) {
    const std::int32_t index = weapNameToIndex(name);
    if (index == -1) {
        WeaponNotFound.raise();
        return 0;
    }
    WeapRec& record = m_catalogue.records()[static_cast<std::size_t>(index)];
    return evaluate(record.*formula, design, lastHull.hullCost, amount);
}

std::int32_t ShipClass::previewWeapCost(std::string_view in_sWeapName, std::int32_t amount) {
    return preview(in_sWeapName, amount, &WeapRec::costform, hull);
}

std::int32_t ShipClass::previewWeapMass(std::string_view in_sWeapName, std::int32_t amount) {
    return preview(in_sWeapName, amount, &WeapRec::massform, hull);
}

std::int32_t ShipClass::countedCost(std::string_view name, std::int32_t amount) {
    return preview(name, amount, &WeapRec::costform, lastHull.design);
}

std::int32_t ShipClass::countedMass(std::string_view name, std::int32_t amount) {
    return preview(name, amount, &WeapRec::massform, lastHull.design);
}

}  // namespace fleetwright
