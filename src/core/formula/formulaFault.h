#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// Why a formula cannot be read.
struct FormulaFault {
    /// Column, in characters from 1; one behind the last where the text ends too early.
    int column;
    /// What is wrong, for the formula's author.
    std::string text;
};

/// What keeps `formula` from being read, or nothing. A formula that divides by zero or ends out of
/// range on some ship is readable.
std::optional<FormulaFault> formulaFault(std::string_view formula);

}  // namespace fleetwright
