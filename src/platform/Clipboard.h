#pragma once

#include <string>

namespace fleetwright {

/// What the user copies and pastes, in this program and in others.
class Clipboard {
public:
    virtual ~Clipboard() = default;

    /// The text on it; empty if there is none.
    virtual std::string text() = 0;
    virtual void setText(const std::string& text) = 0;
};

}  // namespace fleetwright
