#include "commands.h"

#include "formulaFault.h"

#include <cstdio>

namespace fleetwright {

int runEval(const Options& options) {
    std::string formula = options.formula;
    const EvalArguments& arguments = options.evalArguments;
    std::printf("%d\n",
                formula_calculate(formula.data(), arguments.mass, arguments.hull, arguments.ftl,
                                  arguments.thrust, arguments.hullCost, arguments.amount));
    if (const auto fault = formulaFault(formula)) {
        std::fprintf(stderr, "column %d: %s\n", fault->column, fault->text.c_str());
        return SomeRefused;
    }
    return Done;
}

}  // namespace fleetwright
