#pragma once

#include "ShipClass.h"

#include <cstdint>
#include <exception>

namespace fleetwright {

/// Puts a ship back to what it was at this object's creation if the scope is left by an
/// exception. For the operations of ShipClass itself.
class ShipClass::Rollback {
public:
    /// `amount`, if given, is the amount of the record that is about to change.
    explicit Rollback(ShipClass& ship, std::int32_t* amount = nullptr)
        : m_ship(ship), m_hull(ship.m_hull), m_hullFigures(ship.m_hullFigures), m_dcp(ship.g_iDCP),
          m_fcs(ship.g_iFCS), m_damRows(ship.g_iDamRows), m_dp(ship.g_iDP), m_cost(ship.g_lCost),
          m_massLeft(ship.g_iMassLeft), m_saved(ship.g_bSaved), m_amount(amount),
          m_oldAmount(amount == nullptr ? 0 : *amount) {}
    Rollback(const Rollback&) = delete;
    Rollback& operator=(const Rollback&) = delete;

    ~Rollback() {
        if (std::uncaught_exceptions() == m_exceptions) {
            return;
        }
        m_ship.m_hull = m_hull;
        m_ship.m_hullFigures = m_hullFigures;
        m_ship.g_iDCP = m_dcp;
        m_ship.g_iFCS = m_fcs;
        m_ship.g_iDamRows = m_damRows;
        m_ship.g_iDP = m_dp;
        m_ship.g_lCost = m_cost;
        m_ship.g_iMassLeft = m_massLeft;
        m_ship.g_bSaved = m_saved;
        if (m_amount != nullptr) {
            *m_amount = m_oldAmount;
        }
    }

private:
    ShipClass& m_ship;
    HullDesign m_hull;
    HullFigures m_hullFigures;
    std::int32_t m_dcp, m_fcs, m_damRows, m_dp, m_cost, m_massLeft;
    bool m_saved;
    std::int32_t* m_amount;
    std::int32_t m_oldAmount;
    int m_exceptions = std::uncaught_exceptions();
};

}  // namespace fleetwright
