#include "figuresJson.h"

#include "ShipClass.h"
#include "text.h"

#include <cstdio>
#include <string_view>

namespace fleetwright {

Json figuresJson(const ShipClass& ship) {
    return {{"cost", ship.g_lCost},  {"dp", ship.g_iDP},         {"damRows", ship.g_iDamRows},
            {"dcp", ship.g_iDCP},    {"fcs", ship.g_iFCS},       {"massLeft", ship.g_iMassLeft},
            {"class", ship.Class()}, {"relSize", ship.relSize()}};
}

Json systemsJson(ShipClass& ship) {
    Json systems = Json::array();
    for (const WeapRec& record : ship.systemsAboard()) {
        systems.push_back({{"name", record.name},
                           {"amount", record.amount},
                           {"mass", ship.previewWeapMass(record.name, record.amount)},
                           {"cost", ship.previewWeapCost(record.name, record.amount)}});
    }
    return systems;
}

std::string jsonText(const Json& json, int indent) {
    const std::string dumped = json.dump(indent, ' ', false, Json::error_handler_t::replace);
    std::string text;
    for (std::string_view rest = dumped; !rest.empty();) {
        const std::size_t length = characterLength(rest);
        if (const char32_t code = codePoint(rest); rest.front() == '\n' || onlyShows(code)) {
            text += rest.substr(0, length);
        } else {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(code));
            text += escape;
        }
        rest.remove_prefix(length);
    }
    return text;
}

}  // namespace fleetwright
