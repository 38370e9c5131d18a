#include "ShipClass.h"

#include "checkedArithmetic.h"

#include <algorithm>
#include <cstring>

namespace fleetwright {

/// One recalculation pass. Passes nest: AutoMass runs further ones inside the first, and so do
/// listeners that change the ship.
class ShipClass::Pass {
public:
    explicit Pass(ShipClass& ship) : m_ship(ship) {
        ++m_ship.m_passDepth;
        if (isOutermost()) {
            m_ship.m_passCount = 0;
            m_ship.m_autoMassRun = AutoMassRun::Working;
        }
        ++m_ship.m_passCount;
    }
    Pass(const Pass&) = delete;
    Pass& operator=(const Pass&) = delete;
    ~Pass() { --m_ship.m_passDepth; }

    bool isOutermost() const { return m_ship.m_passDepth == 1; }

    /// AutoMass has had its chances: what has not settled by now goes round for ever.
    bool isOneTooMany() const {
        constexpr int mostPasses = 1000;
        return m_ship.g_bAutoMass && m_ship.m_autoMassRun == AutoMassRun::Working &&
               m_ship.m_passCount > mostPasses;
    }

private:
    ShipClass& m_ship;
};

void ShipClass::recalcShip() {
    const Pass pass(*this);
    if (pass.isOneTooMany()) {
        m_autoMassRun = AutoMassRun::GivenUp;
        return;
    }
    const std::int32_t massBefore = m_hull.mass;
    Recalculating.raise();
    show(workOutFigures(m_hull));
    if (g_bAutoMass && m_autoMassRun == AutoMassRun::Working) {
        try {
            fitMass();
        } catch (const OverflowError&) {
            m_autoMassRun = AutoMassRun::GivenUp;
        }
    }
    if (m_autoMassRun != AutoMassRun::GivenUp) {
        g_bSaved = false;
        Recalculated.raise();
    }
    // A listener's pass may have given up as well, so this comes last.
    if (m_autoMassRun == AutoMassRun::GivenUp && pass.isOutermost()) {
        restoreMass(massBefore);
    }
}

ShipClass::Figures ShipClass::workOutFigures(const HullDesign& hull) {
    Figures figures;
    figures.hull = fleetwright::hullFigures(hull);
    const std::int32_t hullCost = figures.hull.hullCost;
    std::int32_t systemCost = 0;
    std::int32_t systemMass = 0;
    for (const std::size_t touched : m_touched) {
        WeapRec& record = m_catalogue.records()[touched];
        if (record.amount > 0) {
            systemCost =
                checkedAdd(systemCost, evaluate(record.costform, hull, hullCost, record.amount));
            systemMass =
                checkedAdd(systemMass, evaluate(record.massform, hull, hullCost, record.amount));
        }
    }
    figures.cost = checkedAdd(figures.hull.cost, systemCost);
    figures.massLeft = checkedSubtract(figures.hull.freeMass, systemMass);
    return figures;
}

void ShipClass::show(const Figures& figures) {
    m_hullFigures = figures.hull;
    g_lCost = figures.cost;
    g_iMassLeft = figures.massLeft;
    g_iDP = figures.hull.damagePoints;
    g_iDCP = figures.hull.damageControlParties;
    g_iFCS = figures.hull.fireControls;
    g_iDamRows = figures.hull.damageRows;
}

/// One step of AutoMass: a large difference is closed in one jump, the rest in steps of 2.
void ShipClass::fitMass() {
    constexpr std::int32_t nearby = 10, step = 2;
    if (m_services.eventLoopTurn) {
        m_services.eventLoopTurn();
    }
    if (g_iMassLeft < -nearby || g_iMassLeft > nearby) {
        const double difference = g_iMassLeft / freeMassFraction(m_hull.hullType, m_hull.ftl);
        m_hull.mass = roundToInt32(m_hull.mass - difference);
        recalcShip();
        return;
    }
    if (g_iMassLeft < 0) {
        m_hull.mass = checkedAdd(m_hull.mass, step);
        recalcShip();
    }
    if (g_iMassLeft > 1 && m_autoMassRun == AutoMassRun::Working) {
        m_hull.mass = checkedSubtract(m_hull.mass, step);
        recalcShip();
    }
}

/// The end of an AutoMass that found no fitting mass: the ship shows its old mass again.
void ShipClass::restoreMass(std::int32_t mass) {
    m_autoMassRun = AutoMassRun::Restoring;
    m_hull.mass = mass;
    show(workOutFigures(m_hull));
    g_bSaved = false;
    Recalculated.raise();
    AutoMassUnsettled.raise();
}

/// Hands a formula to the evaluator. It gets a private copy of the text; what it writes there
/// stays in `text`.
std::int32_t ShipClass::evaluate(std::string_view& text, const HullDesign& hull,
                                 std::int32_t hullCost, std::int32_t amount) {
    // One buffer serves all calls; it only ever grows to the longest formula.
    m_formulaBuffer.resize(std::max(m_formulaBuffer.size(), text.size() + 1));
    std::memcpy(m_formulaBuffer.data(), text.data(), text.size());
    m_formulaBuffer[text.size()] = '\0';
    const std::int32_t value = m_services.formula(m_formulaBuffer.data(), hull.mass, hull.hullType,
                                                  hull.ftl, hull.thrust, hullCost, amount);
    if (std::memcmp(m_formulaBuffer.data(), text.data(), text.size()) != 0) {
        text = m_catalogue.keep(m_formulaBuffer.data());
    }
    return value;
}

ShipClass::State ShipClass::state() const {
    State state{.hull = m_hull,
                .figures = {m_hullFigures, g_lCost, g_iMassLeft},
                .amounts = {},
                .isSaved = g_bSaved};
    for (const std::size_t record : m_touched) {
        if (const std::int32_t amount = m_catalogue.records()[record].amount; amount != 0) {
            state.amounts.emplace_back(record, amount);
        }
    }
    return state;
}

void ShipClass::restore(const State& state) {
    m_hull = state.hull;
    for (const std::size_t record : m_touched) {
        m_catalogue.records()[record].amount = 0;
    }
    for (const auto& [record, amount] : state.amounts) {
        amountOf(record) = amount;
    }
    show(state.figures);
    g_bSaved = state.isSaved;
}

std::int32_t ShipClass::weapCalc(std::string& in_arg) {
    std::string_view text = in_arg;
    const std::int32_t value = evaluate(text, m_hull, m_hullFigures.hullCost, 1);
    in_arg = text;
    return value;
}

}  // namespace fleetwright
