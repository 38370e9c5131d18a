// The language of formulas. An input is formulas, a line each.

#include "FormulaReader.h"
#include "formulaFault.h"
#include "formula_calculate.h"
#include "require.h"
#include "text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>

using namespace fleetwright;

namespace {

constexpr FormulaArguments ships[] = {
    {2, 1, 1, 2, 4, 1},
    {150, 3, 0, 8, 375, 3},
    {-13, 0, 3, -7, 0, -1},
    {std::numeric_limits<std::int32_t>::max(), 6, 1, 32767,
     std::numeric_limits<std::int32_t>::min(), 1'000'000'000},
};

struct Outcome {
    FormulaReader::Fault fault;
    std::ptrdiff_t faultPlace;
    double value;  ///< no number if a division by zero counts

    bool isReadable() const { return fault == FormulaReader::Fault::None; }
};

Outcome outcomeOf(const std::string& text, const FormulaArguments& ship) {
    FormulaReader reader(text.c_str(), ship);
    const double value = reader.read();
    const bool isReadable = reader.fault() == FormulaReader::Fault::None;
    return {.fault = reader.fault(),
            .faultPlace = isReadable ? 0 : reader.faultPlace() - text.c_str(),
            .value = reader.dividesByZero() ? std::nan("") : value};
}

std::int32_t valueOf(const std::string& text, const FormulaArguments& ship) {
    const auto whole = [](double number) { return static_cast<std::int32_t>(number); };
    std::string buffer = text;
    const std::int32_t value =
        formula_calculate(buffer.data(), whole(ship.mass), whole(ship.hull), whole(ship.ftl),
                          whole(ship.thrust), whole(ship.hullCost), whole(ship.amount));
    require(buffer == text, "an evaluation leaves the text as it is");
    return value;
}

/// The checker, the reader and the evaluator must be of one mind about every text.
void checkAgreement(const std::string& text) {
    const auto fault = formulaFault(text);
    const Outcome onAnyShip = outcomeOf(text, ships[0]);
    for (const FormulaArguments& ship : ships) {
        const Outcome outcome = outcomeOf(text, ship);
        require(outcome.isReadable() == !fault && outcome.fault == onAnyShip.fault &&
                    outcome.faultPlace == onAnyShip.faultPlace,
                "whether a text can be read does not depend on the ship");
        const double rounded = std::nearbyint(outcome.value);
        const bool hasValue = outcome.isReadable() &&
                              rounded >= std::numeric_limits<std::int32_t>::min() &&
                              rounded <= std::numeric_limits<std::int32_t>::max();
        require(valueOf(text, ship) == (hasValue ? static_cast<std::int32_t>(rounded) : 0),
                "the value is the rounded one within 32 bits, and 0 without one");
    }
    if (!fault) {
        return;
    }
    require(!fault->text.empty(), "a fault is put into words");
    require(fault->column >= 1 &&
                static_cast<std::size_t>(fault->column) <= characterCount(text) + 1,
            "a fault has its column within the text");
    // The place is that of the first thing that is wrong: what stands before it can go on.
    const std::string before = text.substr(0, static_cast<std::size_t>(onAnyShip.faultPlace));
    const Outcome start = outcomeOf(before, ships[0]);
    require(start.isReadable() || start.faultPlace == onAnyShip.faultPlace,
            "nothing is wrong in front of the fault");
}

/// What stands around a readable text leaves its value as it is; it can only be nested too deep.
void checkSurroundings(const std::string& text, const FormulaArguments& ship) {
    const Outcome plain = outcomeOf(text, ship);
    if (!plain.isReadable()) {
        return;
    }
    const std::string inner = '(' + text + ')';
    for (const std::string& longer :
         {inner, toCapitals(text), "\t " + text + ' ', "1 ? " + inner + " : 1 / 0",
          "0 ? 1 / 0 : " + inner, "max(" + text + ';' + text + ')', "- -" + inner, inner + "^1"}) {
        const Outcome outcome = outcomeOf(longer, ship);
        const bool isSame =
            outcome.value == plain.value || (std::isnan(outcome.value) && std::isnan(plain.value));
        require(outcome.fault == FormulaReader::Fault::TooDeep || (outcome.isReadable() && isSame),
                "the same formula in other words has the same value: " + longer);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string input(reinterpret_cast<const char*>(data), size);
    input.resize(std::min(input.find('\0'), input.size()));
    checkAgreement(input);
    for (std::size_t at = 0; at < input.size();
         at = std::min(input.find('\n', at), input.size()) + 1) {
        const std::string formula = input.substr(at, input.find('\n', at) - at);
        checkAgreement(formula);
        checkSurroundings(formula, ships[size % std::size(ships)]);
    }
    return 0;
}
