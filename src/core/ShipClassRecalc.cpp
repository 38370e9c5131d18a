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
    const std::int32_t massBefore = hull.mass;
    Recalculating.raise();
    numbers() = workOut(hull);
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

/// The numbers of this ship with another hull, all of them, before any is shown.
ShipNumbers ShipClass::workOut(const HullDesign& design) {
    ShipNumbers figures = numbers();
    figures.hull = design;
    figures.lastHull = fleetwright::hullFigures(design);
    const std::int32_t hullCost = figures.lastHull.hullCost;
    std::int32_t systemCost = 0;
    std::int32_t systemMass = 0;
    for (const std::size_t touched : m_touched) {
        WeapRec& record = m_catalogue.records()[touched];
        if (record.amount > 0) {
            systemCost =
                checkedAdd(systemCost, evaluate(record.costform, design, hullCost, record.amount));
            systemMass =
                checkedAdd(systemMass, evaluate(record.massform, design, hullCost, record.amount));
        }
    }
    figures.g_lCost = checkedAdd(figures.lastHull.cost, systemCost);
    figures.g_iMassLeft = checkedSubtract(figures.lastHull.freeMass, systemMass);
    figures.g_iDP = figures.lastHull.damagePoints;
    figures.g_iDCP = figures.lastHull.damageControlParties;
    figures.g_iFCS = figures.lastHull.fireControls;
    figures.g_iDamRows = figures.lastHull.damageRows;
    return figures;
}

bool ShipClass::isWorkedOut() {
    try {
        ShipNumbers figures = workOut(lastHull.design);
        figures.hull = hull;
        return figures == numbers();
    } catch (const OverflowError&) {
        return false;
    }
}

/// One step of AutoMass: a large difference is closed in one jump, the rest in steps of 2.
void ShipClass::fitMass() {
    constexpr std::int32_t nearby = 10, step = 2;
    if (m_services.eventLoopTurn) {
        m_services.eventLoopTurn();
    }
    if (g_iMassLeft < -nearby || g_iMassLeft > nearby) {
        const double difference = g_iMassLeft / freeMassFraction(hull.hullType, hull.ftl);
        hull.mass = roundToInt32(hull.mass - difference);
        recalcShip();
        return;
    }
    if (g_iMassLeft < 0) {
        hull.mass = checkedAdd(hull.mass, step);
        recalcShip();
    }
    if (g_iMassLeft > 1 && m_autoMassRun == AutoMassRun::Working) {
        hull.mass = checkedSubtract(hull.mass, step);
        recalcShip();
    }
}

/// The end of an AutoMass that found no fitting mass: the ship shows its old mass again.
void ShipClass::restoreMass(std::int32_t mass) {
    m_autoMassRun = AutoMassRun::Restoring;
    hull.mass = mass;
    numbers() = workOut(hull);
    g_bSaved = false;
    Recalculated.raise();
    AutoMassUnsettled.raise();
}

/// Hands a formula to the evaluator. It gets a private copy of the text; what it writes there
/// stays in `text`.
std::int32_t ShipClass::evaluate(std::string_view& text, const HullDesign& design,
                                 std::int32_t hullCost, std::int32_t amount) {
    // One buffer serves all calls; it only ever grows to the longest formula.
    m_formulaBuffer.resize(std::max(m_formulaBuffer.size(), text.size() + 1));
    std::memcpy(m_formulaBuffer.data(), text.data(), text.size());
    m_formulaBuffer[text.size()] = '\0';
    const std::int32_t value =
        m_services.formula(m_formulaBuffer.data(), design.mass, design.hullType, design.ftl,
                           design.thrust, hullCost, amount);
    if (std::memcmp(m_formulaBuffer.data(), text.data(), text.size()) != 0) {
        text = m_catalogue.keep(m_formulaBuffer.data());
    }
    return value;
}

ShipState ShipClass::state() const {
    ShipState state{
        static_cast<const ShipNumbers&>(*this), static_cast<const ShipNames&>(*this), {}};
    for (const std::size_t record : m_touched) {
        if (const std::int32_t amount = m_catalogue.records()[record].amount; amount != 0) {
            state.amounts.emplace_back(record, amount);
        }
    }
    return state;
}

void ShipClass::restore(const ShipState& state) {
    numbers() = static_cast<const ShipNumbers&>(state);
    static_cast<ShipNames&>(*this) = static_cast<const ShipNames&>(state);
    for (const std::size_t record : m_touched) {
        m_catalogue.records()[record].amount = 0;
    }
    for (const auto& [record, amount] : state.amounts) {
        amountOf(record) = amount;
    }
}

std::int32_t ShipClass::weapCalc(std::string& in_arg) {
    std::string_view text = in_arg;
    const std::int32_t value = evaluate(text, hull, lastHull.hullCost, 1);
    in_arg = text;
    return value;
}

}  // namespace fleetwright
