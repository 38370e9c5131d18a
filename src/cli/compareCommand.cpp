#include "commands.h"

#include "ShipOnScreen.h"
#include "comparisonJson.h"
#include "comparisonTexts.h"
#include "console.h"
#include "figuresJson.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

using About = ComparedLine::About;

/// The lines about one kind of thing, with the values of all ships.
Json linesOf(std::span<const ComparedLine> lines, About about) {
    Json array = Json::array();
    for (const ComparedLine& line : lines) {
        if (line.about == about) {
            Json values = Json::array();
            for (const ComparedLine::Cell& cell : line.cells) {
                values.push_back(cellJson(cell, about));
            }
            array.push_back(
                {{"name", line.key}, {"differs", line.differs()}, {"values", std::move(values)}});
        }
    }
    return array;
}

Json jsonOf(const std::vector<std::string>& files, std::span<const ComparedLine> lines) {
    return {{"files", files},
            {"differ", std::ranges::any_of(lines, [](const auto& line) { return line.differs(); })},
            {"figures", linesOf(lines, About::Figure)},
            {"fire", linesOf(lines, About::Fire)},
            {"systems", linesOf(lines, About::System)}};
}

int runCompare(const Options& options) {
    std::vector<std::optional<ShipProfile>> loaded(options.words.size());
    const int status = forEachShip(options, RefusedLines::AsComplaints,
                                   [&](std::size_t index, ShipOnScreen& screen) {
                                       refuseFleet(options.words[index]);
                                       loaded[index] = profileOf(screen.ship());
                                       return std::string();
                                   });
    std::vector<std::string> names;
    std::vector<ShipProfile> ships;
    for (std::size_t i = 0; i < loaded.size(); ++i) {
        if (loaded[i]) {
            names.push_back(options.words[i]);
            ships.push_back(std::move(*loaded[i]));
        }
    }
    if (ships.size() > 1) {
        const std::vector<ComparedLine> lines = compareShips(ships);
        printResults(options.has("--json") ? jsonText(jsonOf(names, lines)) + '\n'
                                           : tableOf(names, lines));
    }
    return status;
}

}  // namespace

extern const CommandRow compareCommand = {
    .name = "compare",
    .words = "SHIP SHIP... [--json]",
    .least = 2,
    .most = CommandRow::any,
    .options = {&jsonOption, 1},
    .help = "Hold designs against each other, figure by figure and system by system",
    .details = "Each ship has a column. A line in which not all are alike begins with *. For two "
               "ships the last column says by how much they differ; of more, what differs from "
               "the first one has a * behind it. Weapons count in each direction in which they "
               "bear. With --json, one object.",
    .run = runCompare,
};

}  // namespace fleetwright
