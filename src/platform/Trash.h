#pragma once

#include <filesystem>

namespace fleetwright {

/// Where a desktop keeps files that were thrown away, so that they can be got back.
class Trash {
public:
    virtual ~Trash() = default;

    /// Moves a file there; whether it is there now. Where there is no trash, or it has no room, the
    /// file stays.
    virtual bool moveToTrash(const std::filesystem::path& file) = 0;
};

}  // namespace fleetwright
