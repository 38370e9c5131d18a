#pragma once

// How values are written in an SVG file, whatever the process's locale.

#include "Drawing.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// A number with at most four decimals.
std::string svgNumber(double value);
/// The same at the end of a text.
void addSvgNumber(std::string& written, double value);

/// "#rrggbb".
std::string svgColour(std::uint32_t colour);

/// A text that nothing is markup in, without what XML does not know: control characters.
std::string svgText(std::string_view text);
/// The same at the end of another text.
void addSvgText(std::string& written, std::string_view text);

/// Writes a tag at the end of a text.
class SvgTag {
public:
    SvgTag(std::string& text, std::string_view element) : m_text(text) {
        (m_text += '<') += element;
    }
    /// Sets an attribute, the value as it is.
    SvgTag& set(std::string_view name, std::string_view value);
    SvgTag& set(std::string_view name, double value);
    /// Sets an attribute to a text that nothing is markup in.
    SvgTag& setText(std::string_view name, std::string_view text);
    /// Sets "x", "y", "width" and "height".
    SvgTag& set(const Box& box);
    /// Sets "fill" or "stroke".
    SvgTag& setPaint(std::string_view name, const std::optional<std::uint32_t>& colour);
    /// Ends the tag of an element that goes on.
    void open() { m_text += '>'; }
    /// Ends the tag of an element that holds nothing.
    void close() { m_text += "/>"; }

private:
    std::string& m_text;
};

}  // namespace fleetwright
