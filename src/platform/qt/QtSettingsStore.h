#pragma once

#include "SettingsStore.h"

namespace fleetwright {

/// The desktop's store of settings, under the name of the running application. Several programs
/// can use it at the same time. What `write` has written outlasts a power cut.
class QtSettingsStore : public SettingsStore {
public:
    std::string read(const std::string& section, const std::string& key,
                     const std::string& otherwise) const override;
    void write(const std::string& section, const std::string& key,
               const std::string& value) override;
};

}  // namespace fleetwright
