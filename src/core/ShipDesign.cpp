#include "ShipDesign.h"

#include "designWords.h"

#include <string_view>

namespace fleetwright {

namespace {

void appendLine(std::string& text, std::string_view line) {
    if (!line.empty()) {
        text += line;
        text += "\r\n";
    }
}

}  // namespace

std::string shipFileOf(const ShipDesign& design) {
    const HullDesign& hull = design.hull;
    std::string text;
    appendLine(text, "Ship Name: " + design.shipName);
    appendLine(text, "Designer Name: " + design.designerName);
    appendLine(text, "Mass: " + std::to_string(hull.mass));
    appendLine(text, "Thrust: " + std::to_string(hull.thrust));
    appendLine(text, hullLine(hull.hullType));
    appendLine(text, streamlineLine(hull.streamline));
    appendLine(text, armorLine(hull.armor));
    appendLine(text, ftlLine(hull.ftl));
    for (const auto& [name, amount] : design.systems) {
        appendLine(text, "System: " + name + ", " + std::to_string(amount));
    }
    return text;
}

}  // namespace fleetwright
