#pragma once

#include "PageDocument.h"

#include <string>

namespace fleetwright {

class KeptSvgParts;

/// The families of the fonts of text, the program's own first.
inline constexpr const char* svgFontFamily =
    "FleetWright Sans, FleetWright Fallback, DejaVu Sans, sans-serif";

/// The element "style" that holds, of the program's fonts, the characters that a document shows, so
/// that it looks the same where no font is installed; nothing if it shows none. One that no face
/// has is shown as its replacement there. Arabic letters are there in all forms in which they join.
/// `kept` may be null.
std::string svgFonts(const PageDocument& document, KeptSvgParts* kept);

}  // namespace fleetwright
