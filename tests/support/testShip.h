#pragma once

#include "ShipClass.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// A small catalogue with a system for each thing that tests need.
extern const std::string_view testCatalogue;

/// Ships on a catalogue of the test's own.
class ShipYard {
public:
    explicit ShipYard(std::string_view catalogue = testCatalogue);

    std::unique_ptr<ShipClass> newShip() const { return std::make_unique<ShipClass>(services()); }
    /// A new ship that has loaded, or tried to load, a file with this text.
    std::unique_ptr<ShipClass> loaded(std::string_view shipFile) const;
    ShipServices services() const;
    const TemporaryFolder& folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
};

/// Tests of a new ship.
class NewShip : public testing::Test {
protected:
    const ShipYard yard;
    const std::unique_ptr<ShipClass> ship = yard.newShip();
};

/// Writes down the events of a ship in their order, a word each.
class EventLog {
public:
    explicit EventLog(ShipClass& ship);

    /// What was raised since the last call.
    std::string take();

private:
    void listen(Signal<>& signal, const std::string& name);

    std::string m_text;
    std::vector<Connection> m_connections;
};

/// How many pieces of a system that the catalogue has are aboard.
std::int32_t amountOf(const ShipClass& ship, std::string_view name);

/// "cost dp rows dcp fcs massLeft", to compare all figures at once.
std::string figures(const ShipClass& ship);

}  // namespace fleetwright
