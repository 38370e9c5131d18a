#include "readShip.h"

#include "carriedShips.h"
#include "designCode.h"
#include "paths.h"
#include "readFile.h"

#include <utility>
#include <vector>

namespace fleetwright {

namespace {

/// The one ship of a sheet.
std::string shipIn(const std::string& sheet) {
    std::vector<std::string> ships = shipsIn(sheet);
    if (ships.empty()) {
        throw Error("holds no ship");
    }
    if (ships.size() > 1) {
        throw Error("holds " + std::to_string(ships.size()) +
                    " ships; a sheet of one ship can be loaded");
    }
    return std::move(ships.front());
}

}  // namespace

ShipText readShip(const std::string& fileOrCode) {
    const std::filesystem::path file = nativePath(fileOrCode);
    try {
        if (isDesignCode(fileOrCode)) {
            return {.text = toUtf8(shipInCode(fileOrCode)), .source = ShipSource::Code};
        }
        std::string bytes = readBytes(file);
        if (!isSheet(bytes)) {
            return {.text = toUtf8(std::move(bytes))};
        }
        return {.text = toUtf8(shipIn(bytes)), .source = ShipSource::Sheet};
    } catch (const FileError&) {
        throw;
    } catch (const Error& error) {
        throw SheetError(file, error.what());
    }
}

std::string shipSourceName(const std::string& fileOrCode) {
    return isDesignCode(fileOrCode) ? "Pasted design" : pathText(nativePath(fileOrCode).filename());
}

}  // namespace fleetwright
