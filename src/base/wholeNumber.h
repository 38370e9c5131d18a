#pragma once

#include <cstdint>
#include <string_view>

namespace fleetwright {

/// The whole number that `text` says: blanks around it, an optional sign, decimal digits with an
/// optional fraction ("5.", ".5"), rounded to the nearest, ties to even. Exponents, separators
/// and hexadecimal digits are no numbers. Independent of the locale.
/// Throws NotANumberError, or OverflowError outside 32 bits.
std::int32_t wholeNumber(std::string_view text);

}  // namespace fleetwright
