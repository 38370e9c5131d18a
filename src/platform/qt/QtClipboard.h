#pragma once

#include "Clipboard.h"

namespace fleetwright {

/// The clipboard of the desktop that the program runs on.
class QtClipboard : public Clipboard {
public:
    std::string text() override;
    void setText(const std::string& text) override;
};

}  // namespace fleetwright
