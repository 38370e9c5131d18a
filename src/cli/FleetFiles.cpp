#include "FleetFiles.h"

#include "designCode.h"
#include "fleetPaths.h"
#include "fleetWords.h"

#include <unordered_map>

namespace fleetwright {

FleetFiles::FleetFiles(const ReadFleet& read, const std::filesystem::path& folder) {
    std::unordered_map<std::string, std::size_t> known;
    std::unordered_map<std::string, std::size_t> named;  // spares a look at the disk
    for (std::size_t i = 0; i < read.fleet.ships.size(); ++i) {
        const FleetShip& ship = read.fleet.ships[i];
        const auto [name, isNew] = named.try_emplace(ship.file, 0);
        if (isNew) {
            const std::string path = shipPath(folder, ship);
            const auto [place, isFirst] = known.try_emplace(path, paths.size());
            name->second = place->second;
            if (isFirst) {
                paths.push_back(path);
                lines.push_back(read.shipLines[i]);
            }
        }
        ofShip.push_back(name->second);
    }
}

std::string FleetFiles::complaintOf(const std::string& fleetFile, std::size_t index,
                                    const Fault& fault) const {
    const std::string& path = paths[index];
    const std::string line = complaint(path, fault);
    const bool hasOwnLine = fault.line != 0 && !isDesignCode(path);
    return hasOwnLine ? line : complaint(fleetFile, Fault{lines[index], line});
}

std::vector<Fault> brokenLimits(const ReadFleet& read, const FleetSum& sum) {
    std::vector<Fault> faults;
    auto line = read.limitLines.begin();
    for (const LimitWords& limit : limitWords(read.fleet, sum)) {
        if (limit.isBroken) {
            faults.push_back({*line, limit.text});
        }
        ++line;
    }
    return faults;
}

}  // namespace fleetwright
