#pragma once

#include <cstdint>

/// The value of the formula `text` for so many pieces (`amount`) of a system on a ship of the
/// given mass (mass units), hull type code, FTL code, thrust rating and hull cost, rounded to the
/// nearest whole number, ties to even.
///
/// A pure function: it allocates nothing, keeps nothing between calls and leaves `text`, which
/// ends at its first zero, as it is. A text that cannot be read, that nests deeper than 64
/// levels, divides by zero where it counts, or ends outside 32 bits or as no number has the
/// value 0. The language is described in docs/catalogue.md.
extern "C" std::int32_t formula_calculate(char* text, std::int32_t mass, std::int32_t hull,
                                          std::int32_t ftl, std::int32_t thrust,
                                          std::int32_t hullCost, std::int32_t amount) noexcept;

/// The seven-argument operation behind which an evaluator stands.
using FormulaFunction = std::int32_t (*)(char* text, std::int32_t mass, std::int32_t hull,
                                         std::int32_t ftl, std::int32_t thrust,
                                         std::int32_t hullCost, std::int32_t amount);
