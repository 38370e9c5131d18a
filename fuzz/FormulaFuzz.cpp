// The language of formulas. An input is formulas, a line each.

#include "FormulaReader.h"
#include "formulaFault.h"
#include "formula_calculate.h"
#include "require.h"
#include "roundUpByText.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

using namespace fleetwright;

namespace {

/// The six numbers of a ship, as an evaluation gets them.
using Numbers = std::array<std::int32_t, 6>;

constexpr std::array<Numbers, 4> ships = {{
    {2, 1, 1, 2, 4, 1},
    {150, 3, 0, 8, 375, 3},
    {-13, 0, 3, -7, 0, -1},
    {std::numeric_limits<std::int32_t>::max(), 6, 1, 32767,
     std::numeric_limits<std::int32_t>::min(), 1'000'000'000},
}};

struct Outcome {
    FormulaReader::Fault fault;
    std::ptrdiff_t faultPlace;
    bool dividesByZero;
    double value;

    bool isReadable() const { return fault == FormulaReader::Fault::None; }
};

Outcome outcomeOf(const std::string& text, const Numbers& ship) {
    FormulaReader reader(text.c_str(), {.mass = static_cast<double>(ship[0]),
                                        .hull = static_cast<double>(ship[1]),
                                        .ftl = static_cast<double>(ship[2]),
                                        .thrust = static_cast<double>(ship[3]),
                                        .hullCost = static_cast<double>(ship[4]),
                                        .amount = static_cast<double>(ship[5])});
    const double value = reader.read();
    const bool isReadable = reader.fault() == FormulaReader::Fault::None;
    return {.fault = reader.fault(),
            .faultPlace = isReadable ? 0 : reader.faultPlace() - text.c_str(),
            .dividesByZero = reader.dividesByZero(),
            .value = value};
}

bool isSameNumber(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

/// What `text`, which is made of readable parts, comes to; it can only be nested too deep.
void requireValue(const std::string& text, const Numbers& ship, double value, bool dividesByZero,
                  std::string_view promise) {
    const Outcome outcome = outcomeOf(text, ship);
    if (outcome.fault == FormulaReader::Fault::TooDeep) {
        return;
    }
    const bool holds = outcome.isReadable() && outcome.dividesByZero == dividesByZero &&
                       (dividesByZero || isSameNumber(outcome.value, value));
    if (!holds) {
        std::fprintf(stderr, "%s\ngot %.17g, wanted %.17g\n", text.c_str(), outcome.value, value);
    }
    require(holds, promise);
}

std::int32_t valueOf(const std::string& text, const Numbers& ship) {
    std::string buffer = text;
    const std::int32_t value =
        formula_calculate(buffer.data(), ship[0], ship[1], ship[2], ship[3], ship[4], ship[5]);
    require(buffer == text, "an evaluation leaves the text as it is");
    return value;
}

/// The checker, the reader and the evaluator must be of one mind about every text.
void checkAgreement(const std::string& text) {
    const auto fault = formulaFault(text);
    const Outcome onAnyShip = outcomeOf(text, ships[0]);
    for (const Numbers& ship : ships) {
        const Outcome outcome = outcomeOf(text, ship);
        require(outcome.isReadable() == !fault && outcome.fault == onAnyShip.fault &&
                    outcome.faultPlace == onAnyShip.faultPlace,
                "whether a text can be read does not depend on the ship");
        const double rounded = std::nearbyint(outcome.value);
        const bool hasValue = outcome.isReadable() && !outcome.dividesByZero &&
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

std::string moreBlanks(const std::string& text) {
    std::string spaced = "\t ";
    for (const char c : text) {
        spaced += c == ' ' || c == '\t' ? std::string(" \t ") : std::string(1, c);
    }
    return spaced + ' ';
}

/// What stands around a readable text changes its value as it should.
void checkSurroundings(const std::string& text, const Numbers& ship) {
    const Outcome plain = outcomeOf(text, ship);
    if (!plain.isReadable()) {
        return;
    }
    const double v = plain.value;
    const std::string inner = '(' + text + ')';
    const std::pair<std::string, double> values[] = {{inner, v},
                                                     {toCapitals(text), v},
                                                     {moreBlanks(text), v},
                                                     {"1 ? " + inner + " : 1 / 0", v},
                                                     {"0 ? 1 / 0 : " + inner, v},
                                                     {"max(" + text + ';' + text + ')', v},
                                                     {"min(" + text + ')', v},
                                                     {"- -" + inner, v},
                                                     {"+" + inner, v},
                                                     {inner + "^1", v},
                                                     {"not " + inner, v == 0.0},
                                                     {"roundup" + inner, roundUpByText(v)},
                                                     {"floor" + inner, std::floor(v)},
                                                     {"ceil" + inner, std::ceil(v)},
                                                     {"round" + inner, std::nearbyint(v)},
                                                     {"trunc" + inner, std::trunc(v)},
                                                     {"abs" + inner, std::fabs(v)}};
    for (const auto& [longer, value] : values) {
        requireValue(longer, ship, value, plain.dividesByZero,
                     "a function or bracket has its value");
    }
    requireValue("0 and " + inner, ship, 0.0, false, "what is decided does not count");
    requireValue("1 or " + inner, ship, 1.0, false, "what is decided does not count");
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
        checkSurroundings(formula, ships[size % ships.size()]);
    }
    return 0;
}
