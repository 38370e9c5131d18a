#pragma once

// How values are written in an SVG file, whatever the process's locale.

#include <cstdint>
#include <string>
#include <string_view>

namespace fleetwright {

/// A number with at most four decimals.
std::string svgNumber(double value);

/// "#rrggbb".
std::string svgColour(std::uint32_t colour);

/// A text that nothing is markup in, without what XML does not know: control characters.
std::string svgText(std::string_view text);

/// Writes a tag at the end of a text.
class SvgTag {
public:
    SvgTag(std::string& text, std::string_view element) : m_text(text) {
        (m_text += '<') += element;
    }
    /// Sets an attribute, the value as it is.
    SvgTag& set(std::string_view name, std::string_view value);
    SvgTag& set(std::string_view name, double value);
    /// Ends the tag of an element that goes on.
    void open() { m_text += '>'; }
    /// Ends the tag of an element that holds nothing.
    void close() { m_text += "/>"; }

private:
    std::string& m_text;
};

}  // namespace fleetwright
