#pragma once

#include <string>

namespace fleetwright {

/// What ship files have in common, by which the codes of designs get short. Each code that was ever
/// made needs it to the last byte, so it stays as it is, whatever becomes of the catalogue.
const std::string& designDictionary();

}  // namespace fleetwright
