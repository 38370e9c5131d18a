#include "commands.h"

#include "ShipOnScreen.h"
#include "figuresJson.h"

#include <utility>

namespace fleetwright {

namespace {

int runFigures(const Options& options) {
    return forEachShip(options, RefusedLines::InOutput,
                       [&options](std::size_t index, ShipOnScreen& screen) {
                           if (options.has("--auto-mass")) {
                               screen.switchAutoMassOn();
                           }
                           return figuresOf(options.words[index], screen.ship()) + '\n';
                       });
}

}  // namespace

std::string figuresOf(const std::string& file, ShipClass& ship) {
    Json refused = Json::array();
    for (const RefusedLine& line : ship.refusedLines()) {
        refused.push_back(line.text);
    }
    Json figures = {
        {"file", file},        {"shipName", ship.g_sShipName}, {"designer", ship.g_sDesignerName},
        {"hull", ship.Hull()}, {"mass", ship.mass()},          {"thrust", ship.THRUST()},
        {"ftl", ship.FTL()},   {"armor", ship.Armor()},        {"streamline", ship.Streamline()}};
    figures.update(figuresJson(ship));
    figures["systems"] = systemsJson(ship);
    figures["refused"] = std::move(refused);
    return jsonText(figures);
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
