#include "ShipDesign.h"

#include "ShipFileLine.h"
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
    appendLine(text, shipLine(ShipKey::ShipName, design.shipName));
    appendLine(text, shipLine(ShipKey::DesignerName, design.designerName));
    appendLine(text, shipLine(ShipKey::Mass, std::to_string(hull.mass)));
    appendLine(text, shipLine(ShipKey::Thrust, std::to_string(hull.thrust)));
    appendLine(text, hullLine(hull.hullType));
    appendLine(text, streamlineLine(hull.streamline));
    appendLine(text, armorLine(hull.armor));
    appendLine(text, ftlLine(hull.ftl));
    for (const auto& [name, amount] : design.systems) {
        appendLine(text, shipLine(ShipKey::System, name + ", " + std::to_string(amount)));
    }
    return text;
}

}  // namespace fleetwright
