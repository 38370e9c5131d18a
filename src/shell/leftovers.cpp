#include "leftovers.h"

#include "TemporaryFile.h"

namespace fleetwright {

void takeLeftoversAway(const std::filesystem::path& appFolder) {
    for (const char* const folder : {"", "fleets", "ships", "maps", "ssds", "shipimages"}) {
        TemporaryFile::takeLeftOnesAway(appFolder / folder);
    }
}

}  // namespace fleetwright
