#pragma once

// How values are written in an SVG file, whatever the process's locale.

#include "Drawing.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// A number with at most four decimals; "0" for one that is none, or of 1,000,000,000 or more.
std::string svgNumber(double value);
/// The same at the end of a text.
void addSvgNumber(std::string& written, double value);

/// A short text that is written from its end to its start, as the digits of numbers are worked out;
/// so that it becomes one piece of a longer text.
class BackwardText {
public:
    /// Puts these in front. All of it has room for a tag with some numbers.
    void put(char character) { *--m_start = character; }
    void put(std::string_view piece) {
        m_start -= piece.size();
        piece.copy(m_start, piece.size());
    }
    /// Puts a number in front, as `svgNumber` writes it.
    void putNumber(double value);

    std::string_view text() const { return {m_start, std::size_t(std::end(m_buffer) - m_start)}; }

private:
    void putPair(std::uint32_t number);
    void putDecimals(std::uint32_t number, bool areLast);
    void putRounded(std::uint32_t scaled);

    char m_buffer[256];
    char* m_start = std::end(m_buffer);
};

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
