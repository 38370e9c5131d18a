#include "commands.h"

#include "CatalogueFile.h"
#include "Error.h"
#include "ShipScreens.h"
#include "fleetFile.h"
#include "paths.h"
#include "readShip.h"

#include <system_error>

namespace fleetwright {

int forEachShip(const Options& options, RefusedLines refusedLines,
                const std::function<std::string(std::size_t, ShipOnScreen&)>& work,
                const std::function<void(std::size_t)>& taken) {
    return forEachShip(options, options.words,
                       CatalogueFile::readOnce(options.appFolder / "weaps.dat"), refusedLines, work,
                       taken);
}

int forEachShip(const Options& options, std::span<const std::string> ships,
                const CatalogueFile& catalogueFile, RefusedLines refusedLines,
                const std::function<std::string(std::size_t, ShipOnScreen&)>& work,
                const std::function<void(std::size_t)>& taken) {
    const auto load = [&](std::size_t index, ShipOnScreen& screen) {
        const std::string& file = ships[index];
        Result result;
        if (const auto fault = screen.load(file)) {
            result.complaints.push_back(complaint(file, *fault));
            return result;
        }
        try {
            result.output = work(index, screen);
        } catch (const Error& error) {
            result.complaints.push_back(complaint(nativePath(file), error));
            return result;
        }
        if (refusedLines == RefusedLines::AsComplaints) {
            for (const RefusedLine& line : screen.ship().refusedLines()) {
                result.complaints.push_back(complaint(file, line.fault));
            }
        }
        return result;
    };
    ShipScreens screens(options.appFolder, catalogueFile);
    return printInOrder(
        ships.size(),
        [&](std::size_t index) {
            return screens.lend([&](ShipOnScreen& screen) { return load(index, screen); });
        },
        taken);
}

bool isOutFolder(const std::filesystem::path& out) {
    std::error_code ignored;
    return !out.has_extension() || std::filesystem::is_directory(out, ignored);
}

void refuseFleet(const std::string& ship) {
    if (isFleet(readShip(ship).text)) {
        throw Error(fleetIsNoShip);
    }
}

}  // namespace fleetwright
