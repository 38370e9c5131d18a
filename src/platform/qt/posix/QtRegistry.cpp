#include "QtRegistry.h"

namespace fleetwright {

std::optional<Registry::Value> QtRegistry::read(const std::string&, const std::string&) {
    return std::nullopt;  // there is none
}

}  // namespace fleetwright
