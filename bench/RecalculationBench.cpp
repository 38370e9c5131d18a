// A recalculation pass of a ship with 20 systems, against its 40 formula evaluations alone.

#include "GoalTable.h"
#include "ShipClass.h"

#include <string>
#include <vector>

namespace fleetwright {

namespace {

constexpr std::size_t systemCount = 20;

/// A ship with every few of the delivered catalogue's systems.
ShipClass& ship() {
    static ShipClass ship({.catalogueFile = SOURCE_FOLDER "/data/weaps.dat",
                           .formula = formula_calculate,
                           .eventLoopTurn = {}});
    if (ship.mass() == 2) {
        ship.mass(200);
        WeapRec record;
        std::size_t aboard = 0;
        for (std::int32_t index = 0; index < ship.g_lWeapCount && aboard < systemCount;) {
            ship.listWeap(index, record);
            if (record.name != "CATEGORY" && index % 8 == 0) {
                ship.addWeap(record.name, 2);
                ++aboard;
            }
        }
    }
    return ship;
}

void recalculate(benchmark::State& state) {
    ShipClass& subject = ship();
    for ([[maybe_unused]] auto _ : state) {
        subject.weapChange();
        benchmark::DoNotOptimize(subject.g_lCost);
    }
}

void evaluateAlone(benchmark::State& state) {
    std::vector<std::string> formulas;
    WeapRec record;
    for (std::int32_t index = 0; index < ship().g_lWeapCount;) {
        ship().listWeap(index, record);
        if (record.amount > 0) {
            formulas.emplace_back(record.costform);
            formulas.emplace_back(record.massform);
        }
    }
    if (formulas.size() != 2 * systemCount) {
        state.SkipWithError("not 20 systems");
    }
    const HullDesign& hull = ship().hullDesign();
    for ([[maybe_unused]] auto _ : state) {
        for (std::string& formula : formulas) {
            benchmark::DoNotOptimize(formula_calculate(formula.data(), hull.mass, hull.hullType,
                                                       hull.ftl, hull.thrust, 400, 2));
        }
    }
}

const bool registered = [] {
    for (auto* bench : {benchmark::RegisterBenchmark("recalculation", recalculate),
                        benchmark::RegisterBenchmark("its formulas alone", evaluateAlone)}) {
        bench->Repetitions(9)->MinTime(0.1);
    }
    RegisterGoal({"Recalculation of 20 systems: times its formulas alone", "recalculation",
                  "its formulas alone", 1.2, false});
    return true;
}();

}  // namespace

}  // namespace fleetwright
