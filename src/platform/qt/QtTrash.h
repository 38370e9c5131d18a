#pragma once

#include "Trash.h"

namespace fleetwright {

/// The trash of the desktop that the program runs on.
class QtTrash : public Trash {
public:
    bool moveToTrash(const std::filesystem::path& file) override;
};

}  // namespace fleetwright
