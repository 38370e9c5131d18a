#pragma once

// How values are written in an SVG file, whatever the process's locale.

#include <cstdint>
#include <string>
#include <string_view>

namespace fleetwright {

/// The fonts of text, the program's own first.
inline constexpr const char* svgFontFamily = "FleetWright Sans, DejaVu Sans, sans-serif";

/// A number with at most four decimals.
std::string svgNumber(double value);

/// "#rrggbb".
std::string svgColour(std::uint32_t colour);

/// A text that nothing is markup in, without what XML does not know: control characters.
std::string svgText(std::string_view text);

/// " name="value"", the value as it is.
std::string attribute(const char* name, const std::string& value);
std::string attribute(const char* name, double value);

}  // namespace fleetwright
