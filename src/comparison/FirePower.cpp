#include "FirePower.h"

#include "ShipClass.h"
#include "arcWords.h"
#include "text.h"

#include <algorithm>

namespace fleetwright {

namespace {

constexpr std::string_view directionLetters = "FSAP";  // clockwise

/// The root under which a record stands, by the categories in front of it.
std::string rootOf(const CatalogueText& catalogue, std::size_t record) {
    std::string key = toCapitals(catalogue.lines()[record].categoryKey);
    for (std::size_t above = record; above-- > 0;) {
        const CatalogueLine& line = catalogue.lines()[above];
        // Capitals take as many bytes as small letters, so that most lines need no closer look.
        if (line.isCategory() && line.categoryKey.size() == key.size() &&
            toCapitals(line.categoryKey) == key) {
            key = toCapitals(line.parentKey);
        }
    }
    return key;
}

bool isWeapon(const ShipClass& ship, std::string_view name) {
    static constexpr std::array<std::string_view, 3> roots = {"BEAM", "HEAVY", "ALIEN"};
    const auto record = static_cast<std::size_t>(ship.weapNameToIndex(name));
    return std::ranges::find(roots, rootOf(*ship.catalogueText(), record)) != roots.end();
}

std::string counted(std::int64_t count, const std::string& what) {
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

}  // namespace

FirePower firePowerOf(ShipClass& ship) {
    FirePower power;
    for (const WeapRec& record : ship.systemsAboard()) {
        const std::string_view fields = fieldsOfFire(record.name, record.arclist);
        if (record.amount <= 0 || fields.empty() || !isWeapon(ship, record.name)) {
            continue;
        }
        const std::int32_t points = ship.previewWeapCost(record.name, record.amount);
        for (std::size_t i = 0; i < power.sectors.size(); ++i) {
            if (fields.find(directionLetters[i]) != std::string_view::npos) {
                FirePower::Sector& sector = power.sectors[i];
                sector.weapons += record.amount;
                sector.points += points;
            }
        }
    }
    return power;
}

std::string wordsOf(const FirePower& power) {
    std::string words;
    for (std::size_t i = 0; i < power.sectors.size(); ++i) {
        if (const FirePower::Sector& sector = power.sectors[i]; sector.weapons != 0) {
            words += (words.empty() ? "" : ", ") + std::string(FirePower::names[i]) + ' ' +
                     counted(sector.weapons, "weapon") + " of " + counted(sector.points, "point");
        }
    }
    return words.empty() ? "No weapons." : asSentence(words) + '.';
}

}  // namespace fleetwright
