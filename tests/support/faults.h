#pragma once

#include "Error.h"
#include "Fault.h"

#include <string>
#include <vector>

namespace fleetwright {

/// "line: text" of each fault, a line each.
inline std::string textOf(const std::vector<Fault>& faults) {
    std::string text;
    for (const Fault& fault : faults) {
        text += std::to_string(fault.line) + ": " + fault.text + '\n';
    }
    return text;
}

/// What an act says of the file that it fails at, "path: fault"; empty if it does not fail.
template <typename Act>
std::string fileFaultOf(const Act& act) {
    try {
        act();
    } catch (const FileError& error) {
        return error.file().string() + ": " + error.what();
    }
    return {};
}

}  // namespace fleetwright
