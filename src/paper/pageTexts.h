#pragma once

// Lines of text that fit a width on the paper. Widths and sizes are in millimetres.

#include "PageDocument.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// How far letters rise above their base line, accents on capitals included, times the font's size.
inline constexpr double letterHeight = 0.97;

/// A line in this style, in a smaller font of `smallest` at the least if it is too wide, and
/// without its end, for which "…" stands, if that is not enough.
PageText fittedText(std::string_view text, PageText style, double width, double smallest);

/// A text as lines no wider than this, parted at blanks, or inside of words that are too long: one
/// line at the least. If they are more than `most`, the last one ends in "…".
std::vector<std::string> wrappedText(std::string_view text, const PageText& style, double width,
                                     std::size_t most = static_cast<std::size_t>(-1));

}  // namespace fleetwright
