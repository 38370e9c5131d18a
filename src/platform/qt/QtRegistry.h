#pragma once

#include "Registry.h"

namespace fleetwright {

/// The registry, on desktops that have one; elsewhere it holds nothing.
class QtRegistry : public Registry {
public:
    std::optional<Value> read(const std::string& key, const std::string& name) override;
};

}  // namespace fleetwright
