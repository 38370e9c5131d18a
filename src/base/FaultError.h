#pragma once

#include "Error.h"
#include "Fault.h"

namespace fleetwright {

/// A fault of a text that cannot be used, with its line.
class FaultError : public Error {
public:
    explicit FaultError(const Fault& fault) : Error(fault.text), m_line(fault.line) {}

    Fault fault() const { return {m_line, what()}; }

private:
    int m_line;
};

}  // namespace fleetwright
