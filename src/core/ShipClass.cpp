#include "ShipClass.h"

#include "checkedArithmetic.h"
#include "designWords.h"

#include <algorithm>
#include <utility>

namespace fleetwright {

ShipClass::ShipClass(ShipServices services) : m_services(std::move(services)) {
    m_catalogue.loadWeaps(m_services.catalogueFile);
    g_lWeapCount = narrow<std::int32_t>(std::ssize(m_catalogue.records()));
    recalcShip();
    g_bSaved = true;
}

void ShipClass::mass(std::int32_t i_iArg) {
    change(hull.mass, std::max(i_iArg, smallestMass));
}

void ShipClass::Armor(std::int32_t i_iArg) {
    change(hull.armor, i_iArg >= 0 && i_iArg <= mostArmor ? i_iArg : hull.armor);
}

std::int16_t ShipClass::Streamline() const {
    return narrow<std::int16_t>(hull.streamline);
}

void ShipClass::Streamline(std::int16_t i_iArg) {
    change(hull.streamline, i_iArg >= 0 && i_iArg <= mostStreamline ? i_iArg : hull.streamline);
}

void ShipClass::Hull(std::int32_t i_htArg) {
    change(hull.hullType, i_htArg);
}

void ShipClass::FTL(std::int32_t i_ftArg) {
    change(hull.ftl, i_ftArg);
}

std::int16_t ShipClass::THRUST() const {
    return narrow<std::int16_t>(hull.thrust);
}

void ShipClass::THRUST(std::int16_t i_iArg) {
    change(hull.thrust, std::clamp(std::int32_t{i_iArg}, 0, mostThrust));
}

void ShipClass::weapChange() {
    change(hull.mass, hull.mass);
}

/// Sets one field of the design and recalculates. If that fails, nothing of it has happened.
void ShipClass::change(std::int32_t& field, std::int32_t value) {
    const ShipNumbers before = numbers();
    const std::int32_t valueBefore = std::exchange(field, value);
    try {
        recalcShip();
    } catch (...) {
        field = valueBefore;  // of a system it is none of the numbers
        numbers() = before;
        throw;
    }
}

std::string_view ShipClass::Class() const {
    return classOf(hull.mass);
}

std::string_view ShipClass::relSize() const {
    return designationOf(hull.mass);
}

}  // namespace fleetwright
