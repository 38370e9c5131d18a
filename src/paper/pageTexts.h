#pragma once

// Lines of text that fit a width on the paper. Widths and sizes are in millimetres.

#include "PageDocument.h"

#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// A line in this style, in a smaller font of `smallest` at the least if it is too wide, and
/// without its end, for which "…" stands, if that is not enough.
PageText fittedText(std::string_view text, PageText style, double width, double smallest);

/// A text as lines no wider than this, parted at blanks, or inside of words that are too long. At
/// least one line.
std::vector<std::string> wrappedText(std::string_view text, const PageText& style, double width);

}  // namespace fleetwright
