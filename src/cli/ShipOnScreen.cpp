#include "ShipOnScreen.h"

#include "Error.h"
#include "wholeNumber.h"

namespace fleetwright {

std::optional<Fault> ShipOnScreen::load(const std::string& file) {
    m_connections.clear();
    m_ship = std::make_unique<ShipClass>(m_services);
    m_connections.push_back(m_ship->Recalculated.connect([this] { refresh(); }));
    m_connections.push_back(m_ship->ShipLoaded.connect([this] { setButtons(); }));
    if (!m_ship->loadShip(file)) {
        return m_ship->fileFault();
    }
    try {
        refresh();
    } catch (const OverflowError& error) {
        return Fault{0, error.what()};
    }
    return std::nullopt;
}

void ShipOnScreen::switchAutoMassOn() {
    m_ship->g_bAutoMass = true;
    m_ship->weapChange();
}

void ShipOnScreen::refresh() {
    setMassText(std::to_string(m_ship->mass()));
    setButtons();
}

void ShipOnScreen::setButtons() {
    setHullButton(m_ship->Hull());
    setStreamlineButton(m_ship->Streamline());
    setArmorButton(m_ship->Armor());
    setThrustButton(m_ship->THRUST());
    setFtlButton(m_ship->FTL());
}

void ShipOnScreen::setMassText(const std::string& text) {
    if (text != m_massText) {
        m_massText = text;
        m_ship->mass(wholeNumber(text));
    }
}

void ShipOnScreen::setHullButton(std::int32_t code) {
    if (code == m_hullButton || code < Warship || code > QSpaceStation) {
        return;
    }
    m_hullButton = code;
    if (isBase(code)) {
        setFtlButton(NoDrive);
        setThrustButton(0);
        setStreamlineButton(0);
    }
    m_ship->Hull(code);
}

void ShipOnScreen::setFtlButton(std::int32_t code) {
    const bool hasButton = code == NoDrive || code == NormalDrive || code == TugDrive;
    if (hasButton && code != m_ftlButton) {
        m_ftlButton = code;
        m_ship->FTL(code);
    }
}

void ShipOnScreen::setStreamlineButton(std::int32_t level) {
    if (level != m_streamlineButton) {
        m_streamlineButton = level;
        m_ship->Streamline(static_cast<std::int16_t>(level));
    }
}

void ShipOnScreen::setArmorButton(std::int32_t level) {
    if (level != m_armorButton) {
        m_armorButton = level;
        m_ship->Armor(level);
    }
}

void ShipOnScreen::setThrustButton(std::int32_t thrust) {
    const bool hasButton = thrust >= 0 && thrust <= mostThrust;
    if (hasButton && thrust != m_thrustButton) {
        m_thrustButton = thrust;
        m_ship->THRUST(static_cast<std::int16_t>(thrust));
    }
}

}  // namespace fleetwright
