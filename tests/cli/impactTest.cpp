// What is said of a change of the catalogue against what `figures` says with either one.

#include "ShipOnScreen.h"
#include "TemporaryFolder.h"
#include "commands.h"
#include "comparisonJson.h"
#include "forSeeds.h"
#include "paths.h"
#include "readFile.h"
#include "text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <map>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

/// What a thing was and what it is, by its name.
using Changes = std::map<std::string, std::pair<Json, Json>>;

/// The figures of a ship, what its weapons cover, and its systems, by their names.
std::map<std::string, Json> thingsOf(ShipClass& ship) {
    std::map<std::string, Json> things;
    const Json figures = Json::parse(figuresOf("", ship));
    for (const auto& [name, value] : figures.items()) {
        if (name != "systems" && name != "refused") {
            things[name] = value;
        }
    }
    for (Json system : figures["systems"]) {
        const std::string name = system["name"];
        system.erase("name");
        things["system " + name] = system;
    }
    const FirePower fire = firePowerOf(ship);
    for (std::size_t i = 0; i < FirePower::names.size(); ++i) {
        things["fire " + std::string(FirePower::names[i])] = {{"weapons", fire.sectors[i].weapons},
                                                              {"cost", fire.sectors[i].points}};
    }
    return things;
}

Changes expected(const std::map<std::string, Json>& before,
                 const std::map<std::string, Json>& after) {
    Changes changes;
    for (const auto& [name, value] : before) {
        const auto found = after.find(name);
        changes[name] = {value, found == after.end() ? Json() : found->second};
    }
    for (const auto& [name, value] : after) {
        changes.try_emplace(name, Json(), value);
    }
    std::erase_if(changes,
                  [](const auto& each) { return each.second.first == each.second.second; });
    return changes;
}

Changes named(const std::vector<ComparedLine>& lines) {
    Changes changes;
    for (const ComparedLine& line : lines) {
        const std::string kind = line.about == ComparedLine::About::System ? "system "
                                 : line.about == ComparedLine::About::Fire ? "fire "
                                                                           : "";
        changes[kind + line.key] = {cellJson(line.cells[0], line.about),
                                    cellJson(line.cells[1], line.about)};
    }
    return changes;
}

/// One change of the kinds that authors make, by intent or not.
void changeLine(std::mt19937& random, Lines& lines) {
    const auto place = anyOf(random, 0, static_cast<int>(lines.size()) - 1);
    const auto line = lines.begin() + place;
    const std::size_t comma = line->find(','), next = line->find(',', comma + 1);
    if (line->starts_with('#') || next == std::string::npos) {
        return changeLine(random, lines);
    }
    const bool isCost = anyOf(random, 0, 1) == 1;
    const std::size_t end = isCost ? line->find(',', next + 1) : next;
    const std::size_t begin = (isCost ? next : comma) + 1;
    switch (anyOf(random, 0, 8)) {
    case 0:
        lines.erase(line);
        break;
    case 1:
        line->insert(comma, " New");
        break;
    case 2:
        lines.insert(line, *line);
        break;
    case 3:
        std::iter_swap(line, lines.begin() + anyOf(random, 0, static_cast<int>(lines.size()) - 1));
        break;
    case 4:
        line->replace(begin, end - begin, "2147483647");
        break;
    case 5:
        line->replace(begin, end - begin, "no formula");
        break;
    case 6:
        line->insert(end, " * 0 + roundup(mass / 7)");
        break;
    default:
        line->insert(end, " + " + std::to_string(anyOf(random, -9, 9)));
    }
}

/// Each run of the tests tries a few. `FLEETWRIGHT_CHANGES` says how many else.
int changesToTry() {
    const char* const count = std::getenv("FLEETWRIGHT_CHANGES");
    return count == nullptr ? 10 : std::atoi(count);
}

}  // namespace

TEST(Impact, NamesEachChangedFigureAndNoOther) {
    const fs::path app = APP_FOLDER;
    const CatalogueText catalogue(readTextFile(app / "weaps.dat"));
    Lines lines;
    LineReader reader(catalogue.text());
    for (std::string_view line; reader.next(line);) {
        lines.emplace_back(line);
    }
    struct Ship {
        std::string file;
        ShipProfile profile;
        std::map<std::string, Json> things;
    };
    std::vector<Ship> ships;
    for (const fs::path& file : listFolder(app / "ships", ".shp")) {
        ShipOnScreen screen(app);
        ASSERT_FALSE(screen.load(file.string()));
        ships.push_back({file.string(), profileOf(screen.ship()), thingsOf(screen.ship())});
    }
    ASSERT_FALSE(ships.empty());
    std::size_t affected = 0;
    forSeeds([&](std::mt19937& random) {
        for (int count = 0; count < changesToTry(); ++count) {
            Lines changed = lines;
            for (int changes = anyOf(random, 1, 3); changes > 0; --changes) {
                changeLine(random, changed);
            }
            std::string text;
            for (const std::string& line : changed) {
                text += line + "\r\n";
            }
            const auto file =
                CatalogueFile::holding(std::make_shared<const CatalogueText>(std::move(text)));
            for (const Ship& ship : ships) {
                ShipOnScreen screen(app, file);
                if (screen.load(ship.file)) {
                    continue;
                }
                const Changes changes = named(impactOn(ship.profile, profileOf(screen.ship())));
                affected += changes.empty() ? 0U : 1U;
                ASSERT_EQ(changes, expected(ship.things, thingsOf(screen.ship()))) << ship.file;
            }
        }
    });
    EXPECT_GT(affected, 0U);
}
