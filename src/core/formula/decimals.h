#pragma once

namespace fleetwright {

/// Reads the number at `place`, decimal digits with or without a point and more digits, and moves
/// `place` behind it. The nearest double, however many digits there are; infinity above all of
/// them.
double readDecimal(const char*& place);

/// The rounding of the game's fractions, decided on the decimal text of `x` with at most 15
/// significant digits: with a point in that text, `x` is cut toward zero and 1 is added; without
/// one, `x` is rounded to the nearest whole number, ties to even.
///
/// So a true fraction always goes up, but a value that is a whole number up to the last few bits
/// stays that number: 30 * 0.1 is 3 and not 4. A negative fraction goes up by its whole part:
/// -13.5 gives -12. What is no finite number comes back as it is.
double roundUpWhole(double x);

}  // namespace fleetwright
