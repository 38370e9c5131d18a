#pragma once

// The lines of a fleet file, which are `key = value`.

#include <cstddef>
#include <string>
#include <string_view>

namespace fleetwright {

/// A line of a fleet file.
struct FleetLine {
    std::string_view whole;  ///< with its end
    std::string_view text;   ///< without it
    std::string key;  ///< in small letters; empty for a comment, an empty line and what is no
                      ///< `key = value`
    std::string value;
    std::size_t valueAt = 0;  ///< where the value begins in the line

    bool isBlank() const;
    bool isComment() const;
};

/// Cuts the first line, which ends at CR, LF or CR LF, off a text that is not empty.
FleetLine cutFleetLine(std::string_view& text);

/// The end of a line, as the first line of a text has it; else CR LF.
std::string_view lineEndOf(std::string_view text);

/// A value as it stands in a line: in quotation marks if blanks or such marks would be lost.
std::string writtenValue(std::string_view value);

/// A text without what a line cannot hold: line breaks and what is no UTF-8.
std::string oneLine(std::string_view text);

}  // namespace fleetwright
