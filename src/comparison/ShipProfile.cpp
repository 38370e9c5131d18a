#include "ShipProfile.h"

#include "ShipClass.h"
#include "designWords.h"

namespace fleetwright {

namespace {

using Figure = ShipProfile::Figure;

Figure name(std::string_view key, std::string_view title, std::string_view text) {
    return {.key = key, .title = title, .text = std::string(text)};
}

Figure amount(std::string_view key, std::string_view title, std::int32_t number) {
    return {.key = key,
            .title = title,
            .text = std::to_string(number),
            .number = number,
            .isNumber = true,
            .isAmount = true};
}

/// A choice of the design; without a word of its own it is the number.
Figure choice(std::string_view key, std::string_view title, std::int32_t code,
              const std::string& line) {
    return {.key = key,
            .title = title,
            .text = wordOf(line, code == 0 ? "None" : std::to_string(code)),
            .number = code,
            .isNumber = true};
}

std::vector<Figure> figuresOfShip(const ShipClass& ship) {
    return {
        name("shipName", "Ship name", ship.g_sShipName),
        name("designer", "Designer", ship.g_sDesignerName),
        choice("hull", "Hull", ship.Hull(), hullLine(ship.Hull())),
        amount("mass", "Mass", ship.mass()),
        amount("thrust", "Thrust", ship.hullDesign().thrust),
        choice("ftl", "FTL drive", ship.FTL(), ftlLine(ship.FTL())),
        choice("armor", "Armor", ship.Armor(), armorLine(ship.Armor())),
        choice("streamline", "Streamlining", ship.Streamline(), streamlineLine(ship.Streamline())),
        amount("cost", "Cost", ship.g_lCost),
        amount("dp", "Damage points", ship.g_iDP),
        amount("damRows", "Damage rows", ship.g_iDamRows),
        amount("dcp", "Damage control parties", ship.g_iDCP),
        amount("fcs", "Fire control systems", ship.g_iFCS),
        amount("massLeft", "Mass left", ship.g_iMassLeft),
        name("class", "Class", ship.Class()),
        name("relSize", "Size", ship.relSize())};
}

}  // namespace

ShipProfile profileOf(ShipClass& ship) {
    ShipProfile profile{.figures = figuresOfShip(ship), .fire = firePowerOf(ship), .systems = {}};
    for (const WeapRec& record : ship.systemsAboard()) {
        profile.systems.push_back(
            {.record = static_cast<std::size_t>(ship.weapNameToIndex(record.name)),
             .name = std::string(record.name),
             .amount = record.amount,
             .mass = ship.previewWeapMass(record.name, record.amount),
             .cost = ship.previewWeapCost(record.name, record.amount)});
    }
    return profile;
}

}  // namespace fleetwright
