#include "fleetPaths.h"

#include "Error.h"
#include "designCode.h"
#include "paths.h"
#include "text.h"

#include <algorithm>
#include <utility>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

fs::path pathOf(const FleetShip& ship) {
    std::string name = ship.file;
    std::replace(name.begin(), name.end(), '\\', '/');
    return nativePath(name);
}

/// A file whose name looks like a code is named with its folder.
std::string asFile(const std::string& name) {
    return isDesignCode(name) ? "./" + name : name;
}

fs::path absoluteFolder(const fs::path& folder) {
    std::error_code error;
    return fs::absolute(folder.empty() ? "." : folder, error).lexically_normal();
}

bool isSameFolder(const fs::path& a, const fs::path& b) {
    return absoluteFolder(a).lexically_proximate(absoluteFolder(b)) == ".";
}

}  // namespace

std::string shipPath(const fs::path& fleetFolder, const FleetShip& ship) {
    if (isDesignCode(ship.file) || ship.file.empty()) {
        return ship.file;
    }
    return asFile(pathText(findFile((fleetFolder / pathOf(ship)).lexically_normal())));
}

std::string fileInFleet(const fs::path& fleetFolder, const fs::path& shipFile) {
    std::error_code error;
    const fs::path file = fs::absolute(shipFile, error).lexically_normal();
    // On another drive there is no way from the one to the other.
    const fs::path way = file.lexically_proximate(absoluteFolder(fleetFolder));
    const std::u8string generic = way.generic_u8string();
    const std::string name(generic.begin(), generic.end());
    if (!isUtf8(name) || name.find_first_of("\r\n") != std::string::npos) {
        throw FileError(shipFile, "its name is no text that a fleet can hold");
    }
    return asFile(name);
}

void moveFleet(Fleet& fleet, const fs::path& from, const fs::path& to) {
    if (isSameFolder(from, to)) {
        return;
    }
    const bool staysOnDrive = absoluteFolder(from).root_name() == absoluteFolder(to).root_name();
    for (FleetShip& ship : fleet.ships) {
        const bool isFromRoot = staysOnDrive && pathOf(ship).has_root_directory();
        if (!ship.file.empty() && !isDesignCode(ship.file) && !isFromRoot &&
            pathOf(ship).is_relative()) {
            ship.file = fileInFleet(to, nativePath(shipPath(from, ship)));
        }
    }
}

}  // namespace fleetwright
