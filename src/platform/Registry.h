#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace fleetwright {

/// The machine's registry, where the desktop has one.
class Registry {
public:
    virtual ~Registry() = default;

    static constexpr std::uint32_t textType = 1;
    static constexpr std::uint32_t numberType = 4;

    struct Value {
        std::uint32_t type = 0;
        std::string bytes;  ///< a text with the zero that ends it, if it has one
    };

    /// The value of a key below the machine's root; nothing where it cannot be read.
    virtual std::optional<Value> read(const std::string& key, const std::string& name) = 0;
};

}  // namespace fleetwright
