#include "formula_calculate.h"

#include "FormulaReader.h"

#include <cmath>
#include <limits>

std::int32_t formula_calculate(char* text, std::int32_t mass, std::int32_t hull, std::int32_t ftl,
                               std::int32_t thrust, std::int32_t hullCost,
                               std::int32_t amount) noexcept {
    using Limits = std::numeric_limits<std::int32_t>;
    fleetwright::FormulaReader reader(text, {.mass = static_cast<double>(mass),
                                             .hull = static_cast<double>(hull),
                                             .ftl = static_cast<double>(ftl),
                                             .thrust = static_cast<double>(thrust),
                                             .hullCost = static_cast<double>(hullCost),
                                             .amount = static_cast<double>(amount)});
    const double value = std::nearbyint(reader.read());
    const bool hasValue = reader.fault() == fleetwright::FormulaReader::Fault::None &&
                          !reader.dividesByZero() && value >= Limits::min() &&
                          value <= Limits::max();
    return hasValue ? static_cast<std::int32_t>(value) : 0;
}
