#pragma once

#include <span>
#include <string_view>

namespace fleetwright {

/// One file of an archive.
struct ArchivedFile {
    std::string_view name;
    std::string_view bytes;
};

/// The pictures that are built into this program, by name.
std::span<const ArchivedFile> archivedPictures();

}  // namespace fleetwright
