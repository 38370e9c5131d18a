#pragma once

#include "PageDocument.h"

#include <string>

namespace fleetwright {

/// The families of the fonts of text, the program's own first.
inline constexpr const char* svgFontFamily =
    "FleetWright Sans, FleetWright Fallback, DejaVu Sans, sans-serif";

/// The element "style" that holds, of the program's fonts, the characters that a document shows, so
/// that it looks the same where no font is installed; nothing if it shows none. One that no face
/// has is shown as its replacement there.
std::string svgFonts(const PageDocument& document);

}  // namespace fleetwright
