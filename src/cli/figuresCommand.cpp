#include "commands.h"

#include "ShipOnScreen.h"
#include "text.h"

#include <nlohmann/json.hpp>

#include <cstdio>

namespace fleetwright {

namespace {

using Json = nlohmann::ordered_json;

Json systemsOf(ShipClass& ship) {
    Json systems = Json::array();
    for (const WeapRec& record : ship.systemsAboard()) {
        systems.push_back({{"name", record.name},
                           {"amount", record.amount},
                           {"mass", ship.previewWeapMass(record.name, record.amount)},
                           {"cost", ship.previewWeapCost(record.name, record.amount)}});
    }
    return systems;
}

int runFigures(const Options& options) {
    return forEachShip(options, RefusedLines::InOutput,
                       [&options](std::size_t index, ShipOnScreen& screen) {
                           if (options.has("--auto-mass")) {
                               screen.switchAutoMassOn();
                           }
                           return figuresOf(options.words[index], screen.ship()) + '\n';
                       });
}

/// JSON whose characters all do nothing but show. They stand in its texts, where \u is the same.
std::string withEscapes(std::string_view json) {
    std::string text;
    while (!json.empty()) {
        const std::size_t length = characterLength(json);
        if (const char32_t code = codePoint(json); onlyShows(code)) {
            text += json.substr(0, length);
        } else {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(code));
            text += escape;
        }
        json.remove_prefix(length);
    }
    return text;
}

}  // namespace

std::string figuresOf(const std::string& file, ShipClass& ship) {
    Json refused = Json::array();
    for (const RefusedLine& line : ship.refusedLines()) {
        refused.push_back(line.text);
    }
    const Json figures = {{"file", file},
                          {"shipName", ship.g_sShipName},
                          {"designer", ship.g_sDesignerName},
                          {"hull", ship.Hull()},
                          {"mass", ship.mass()},
                          {"thrust", ship.THRUST()},
                          {"ftl", ship.FTL()},
                          {"armor", ship.Armor()},
                          {"streamline", ship.Streamline()},
                          {"cost", ship.g_lCost},
                          {"dp", ship.g_iDP},
                          {"damRows", ship.g_iDamRows},
                          {"dcp", ship.g_iDCP},
                          {"fcs", ship.g_iFCS},
                          {"massLeft", ship.g_iMassLeft},
                          {"class", ship.Class()},
                          {"relSize", ship.relSize()},
                          {"systems", systemsOf(ship)},
                          {"refused", std::move(refused)}};
    // A file name can hold bytes that are no text; the object must stay readable all the same.
    return withEscapes(figures.dump(-1, ' ', false, Json::error_handler_t::replace));
}

constexpr OptionRow figuresOptions[] = {
    {.name = "--auto-mass", .help = "Fit the hull mass to the systems"},
};

extern const CommandRow figuresCommand = {
    .name = "figures",
    .words = "SHIP... [--auto-mass]",
    .least = 1,
    .most = CommandRow::any,
    .options = figuresOptions,
    .help = "Print the figures of ships, one JSON object a line",
    .details = "With --auto-mass, the mass of the hull is fitted to the systems first.",
    .run = runFigures,
};

}  // namespace fleetwright
