#include "ShipClass.h"

#include "ShipClassRollback.h"
#include "checkedArithmetic.h"
#include "designWords.h"
#include "sizeNames.h"

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
    const Rollback rollback(*this);
    m_hull.mass = std::max(i_iArg, smallestMass);
    recalcShip();
}

std::int32_t ShipClass::Armor() const {
    return levelOf(m_hull.armor);
}

void ShipClass::Armor(std::int32_t i_iArg) {
    const Rollback rollback(*this);
    m_hull.armor = factorOf(i_iArg).value_or(m_hull.armor);
    recalcShip();
}

std::int16_t ShipClass::Streamline() const {
    return static_cast<std::int16_t>(levelOf(m_hull.streamline));
}

void ShipClass::Streamline(std::int16_t i_iArg) {
    const Rollback rollback(*this);
    m_hull.streamline = factorOf(i_iArg).value_or(m_hull.streamline);
    recalcShip();
}

void ShipClass::Hull(std::int32_t i_htArg) {
    const Rollback rollback(*this);
    m_hull.hullType = i_htArg;
    recalcShip();
}

void ShipClass::FTL(std::int32_t i_ftArg) {
    const Rollback rollback(*this);
    m_hull.ftl = i_ftArg;
    recalcShip();
}

std::int16_t ShipClass::THRUST() const {
    return narrow<std::int16_t>(m_hull.thrust);
}

void ShipClass::THRUST(std::int16_t i_iArg) {
    const Rollback rollback(*this);
    m_hull.thrust = std::clamp(i_iArg, std::int16_t{0}, std::int16_t{mostThrust});
    recalcShip();
}

std::string_view ShipClass::Class() const {
    return classOf(m_hull.mass);
}

std::string_view ShipClass::relSize() const {
    return designationOf(m_hull.mass);
}

}  // namespace fleetwright
