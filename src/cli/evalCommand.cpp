#include "commands.h"

#include "console.h"
#include "formulaFault.h"

#include <charconv>
#include <cstdint>
#include <string>

namespace fleetwright {

namespace {

std::int32_t numberOf(std::string_view option, const std::string& text) {
    std::int32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) {
        throw UsageError(std::string(option) + ": " + quote(text) +
                         " is no whole number of 32 bits");
    }
    return number;
}

void checkNumber(std::string_view option, const std::string& value) {
    numberOf(option, value);
}

int runEval(const Options& options) {
    std::string formula = options.words.front();
    const auto number = [&](std::string_view option) {
        return numberOf(option, options.value(option));
    };
    printResults(std::to_string(formula_calculate(
                     formula.data(), number("--mass"), number("--hull"), number("--ftl"),
                     number("--thrust"), number("--hull-cost"), number("--amount"))) +
                 '\n');
    if (const auto fault = formulaFault(formula)) {
        complain("column " + std::to_string(fault->column) + ": " + fault->text);
        return SomeRefused;
    }
    return Done;
}

constexpr OptionRow number(std::string_view name, std::string_view help,
                           std::string_view byDefault) {
    return {.name = name, .value = "N", .help = help, .byDefault = byDefault, .check = checkNumber};
}

constexpr OptionRow evalOptions[] = {
    number("--mass", "hull mass", "2"),
    number("--hull", "hull type code", "1"),
    number("--ftl", "FTL code", "1"),
    number("--thrust", "thrust", "2"),
    number("--hull-cost", "cost of the hull", "4"),
    number("--amount", "pieces", "1"),
};

}  // namespace

extern const CommandRow evalCommand = {
    .name = "eval",
    .words = "FORMULA [NUMBERS]",
    .least = 1,
    .most = 1,
    .takesSigned = true,
    .options = evalOptions,
    .help = "Work out a mass or cost formula of the catalogue",
    .details = "The options give the numbers that the formula can name.",
    .run = runEval,
};

}  // namespace fleetwright
