// A formula from its text, against muParser, which is given the same text each time. There is no
// cache to win with on either side.

#include "GoalTable.h"
#include "formula_calculate.h"

#include <muParser.h>

#include <string>

namespace fleetwright {

namespace {

// A short, a middle and a long one of the catalogue.
const std::string formulas[] = {
    "4 * amount",
    "max(roundup(mass * 0.06); 2) * amount",
    "(hull >= 4 ? roundup(mass * 0.04) : roundup(mass * 0.08) + thrust) * amount + hullcost * 0.1",
};

void evaluate(benchmark::State& state, std::size_t index) {
    std::string text = formulas[index];
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(formula_calculate(text.data(), 60, 1, 1, 4, 120, 3));
    }
}

double roundUp(double x) {
    return std::ceil(x);
}

void evaluateWithMuParser(benchmark::State& state, std::size_t index) {
    std::string text = formulas[index];
    double mass = 60, hull = 1, ftl = 1, thrust = 4, hullCost = 120, amount = 3;
    mu::Parser parser;
    parser.SetArgSep(';');
    parser.DefineVar("mass", &mass);
    parser.DefineVar("hull", &hull);
    parser.DefineVar("ftl", &ftl);
    parser.DefineVar("thrust", &thrust);
    parser.DefineVar("hullcost", &hullCost);
    parser.DefineVar("amount", &amount);
    parser.DefineFun("roundup", roundUp);
    for ([[maybe_unused]] auto _ : state) {
        parser.SetExpr(text);
        benchmark::DoNotOptimize(parser.Eval());
    }
}

const char* const names[] = {"short", "middle", "long"};

const bool registered = [] {
    for (std::size_t i = 0; i < std::size(formulas); ++i) {
        const std::string own = std::string("formula ") + names[i];
        const std::string peer = own + " muParser";
        for (auto* bench : {benchmark::RegisterBenchmark(own.c_str(), evaluate, i),
                            benchmark::RegisterBenchmark(peer.c_str(), evaluateWithMuParser, i)}) {
            bench->Repetitions(5)->MinTime(0.1);
        }
        RegisterGoal({"Formula, " + std::string(names[i]) + ": times as fast as muParser", peer,
                      own, 60, true});
    }
    return true;
}();

}  // namespace

}  // namespace fleetwright
