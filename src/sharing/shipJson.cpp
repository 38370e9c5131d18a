#include "shipJson.h"

#include "JsonReader.h"
#include "ShipClass.h"
#include "designWords.h"
#include "figuresJson.h"

#include <algorithm>

namespace fleetwright {

std::string shipJson(ShipClass& ship, std::string_view file) {
    const ShipDesign design = ship.design();
    const HullDesign& hull = design.hull;
    nlohmann::ordered_json json = {
        {"format", shipJsonFormat},
        {"file", file},
        {"shipName", design.shipName},
        {"designerName", design.designerName},
        {"mass", hull.mass},
        {"thrust", hull.thrust},
        {"type", wordOf(hullLine(hull.hullType))},
        {"streamlining", wordOf(streamlineLine(hull.streamline), noStreamliningWord)},
        {"armor", hull.armor},
        {"ftl", wordOf(ftlLine(hull.ftl))},
        {"systems", systemsJson(ship)},
        {"figures", figuresJson(ship)}};
    if (file.empty()) {
        json.erase("file");
    }
    return jsonText(json, 2);
}

std::string arrayOfShips(const std::vector<std::string>& ships) {
    std::string array = "[\n";
    for (const std::string& ship : ships) {
        array += ship;
        array += &ship == &ships.back() ? "\n" : ",\n";
    }
    return array + ']';
}

int JsonShip::lineOf(int shipFileLine) const {
    const std::string linesAbove =
        shipFileOf({design.shipName, design.designerName, design.hull, {}});
    const auto system = shipFileLine - 1 - std::ranges::count(linesAbove, '\n');
    return system < 0 ? line : systemLines[static_cast<std::size_t>(system)];
}

std::vector<JsonShip> shipsInJson(const std::string& json) {
    return JsonReader(json).read();
}

}  // namespace fleetwright
