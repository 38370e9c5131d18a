#pragma once

#include <string_view>

namespace fleetwright {

/// What the ship report needs of a printer; anything that takes lines can stand in for one.
class ReportPrinter {
public:
    virtual ~ReportPrinter() = default;

    virtual void printLine(std::string_view line) = 0;
    virtual void printEmptyLine() = 0;
    /// The report is complete: the next line belongs to another document.
    virtual void endDocument() = 0;
};

}  // namespace fleetwright
