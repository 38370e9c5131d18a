#include "fleetPaths.h"

#include "Error.h"
#include "paths.h"
#include "text.h"

#include <algorithm>

namespace fleetwright {

namespace fs = std::filesystem;

bool isCode(const std::string& file) {
    return file.starts_with("FW1:");
}

std::string shipPath(const fs::path& fleetFolder, const FleetShip& ship) {
    if (isCode(ship.file) || ship.file.empty()) {
        return ship.file;
    }
    std::string name = ship.file;
    std::replace(name.begin(), name.end(), '\\', '/');
    return pathText(findFile((fleetFolder / nativePath(name)).lexically_normal()));
}

std::string fileInFleet(const fs::path& fleetFolder, const fs::path& shipFile) {
    std::error_code error;
    const fs::path folder = fs::absolute(fleetFolder, error).lexically_normal();
    const fs::path file = fs::absolute(shipFile, error).lexically_normal();
    // On another drive there is no way from the one to the other.
    const fs::path way = file.lexically_proximate(folder);
    const std::u8string generic = way.generic_u8string();
    std::string name(generic.begin(), generic.end());
    if (!isUtf8(name)) {
        throw FileError(shipFile, "its name is no text that a fleet can hold");
    }
    return name;
}

void moveFleet(Fleet& fleet, const fs::path& from, const fs::path& to) {
    for (FleetShip& ship : fleet.ships) {
        if (!isCode(ship.file) && nativePath(ship.file).is_relative()) {
            ship.file = fileInFleet(to, nativePath(shipPath(from, ship)));
        }
    }
}

}  // namespace fleetwright
