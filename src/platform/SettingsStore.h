#pragma once

#include <string>

namespace fleetwright {

/// The user's settings, which outlive the program: texts under a section and a key.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// The text stored, or `otherwise` where there is none. Throws FileError where that cannot be
    /// found out.
    virtual std::string read(const std::string& section, const std::string& key,
                             const std::string& otherwise) const = 0;
    /// Throws FileError.
    virtual void write(const std::string& section, const std::string& key,
                       const std::string& value) = 0;
};

}  // namespace fleetwright
