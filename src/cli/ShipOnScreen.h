#pragma once

#include "ShipClass.h"
#include "Signal.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

/// A ship as the freshly started program shows it.
///
/// The window copies a ship to its controls at each refresh, and a control that changes writes
/// back: the mass is brought to 2 at least, a base hull loses drive, thrust and streamlining, and
/// so on, also in the middle of a load. This is the part of those rules that changes a ship,
/// without a window.
class ShipOnScreen {
public:
    explicit ShipOnScreen(ShipServices services) : m_services(std::move(services)) {}

    /// Loads a ship file as the Load command does, then lets one tick of the refresh timer pass.
    /// Returns why the file does not load, or nothing. Throws FileError when the catalogue cannot
    /// be read.
    std::optional<Fault> load(const std::string& file);

    /// Switches AutoMass on.
    void switchAutoMassOn();

    /// The ship that was loaded last.
    ShipClass& ship() { return *m_ship; }

private:
    void refresh();
    void setButtons();
    void setMassText(const std::string& text);
    void setHullButton(std::int32_t code);
    void setFtlButton(std::int32_t code);
    void setStreamlineButton(std::int32_t level);
    void setArmorButton(std::int32_t level);
    void setThrustButton(std::int32_t thrust);

    ShipServices m_services;
    std::unique_ptr<ShipClass> m_ship;
    std::vector<Connection> m_connections;

    // What the controls show; at first what the program's first ship, a new one, has put there.
    std::string m_massText = "2";
    std::int32_t m_hullButton = Warship;
    std::int32_t m_ftlButton = NormalDrive;
    std::int32_t m_streamlineButton = 0;
    std::int32_t m_armorButton = 0;
    std::int32_t m_thrustButton = 2;
};

}  // namespace fleetwright
