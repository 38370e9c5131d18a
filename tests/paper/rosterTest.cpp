// The roster of a fleet: what stands where on its pages.

#include "caseFile.h"
#include "eachRosterPage.h"
#include "fleetFile.h"
#include "paperWorld.h"
#include "wholeNumber.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

/// "mass points damage-points rows thrust ftl name", or why a ship does not load.
FleetRow rowOf(const std::string& line) {
    FleetRow row;
    std::vector<std::string> words;
    std::string rest = line;
    for (int i = 0; i < 6; ++i) {
        const auto [word, more] = cut(rest);
        words.push_back(word);
        rest = more;
    }
    if (line.find_first_not_of("0123456789") == 0) {
        row.faults.push_back({0, line});
        return row;
    }
    row.figures = ShipFigures{.name = rest,
                              .designer = {},
                              .hull = "Warship",
                              .shipClass = "Cruiser",
                              .designation = "Light Cruiser",
                              .mass = wholeNumber(words[0]),
                              .points = wholeNumber(words[1]),
                              .damagePoints = wholeNumber(words[2]),
                              .damageRows = wholeNumber(words[3]),
                              .thrust = wholeNumber(words[4]),
                              .ftl = wholeNumber(words[5])};
    return row;
}

}  // namespace

TEST(Roster, HasAPlaceForEverything) {
    expectCases("paper/golden/roster.txt", [](const Case& given) {
        Fleet fleet = parseFleet("FleetWright fleet 1\n" + given["fleet"]).fleet;
        FleetRows rows;
        for (const std::string& line : linesOf(given["ships"])) {
            rows.push_back(std::make_shared<const FleetRow>(rowOf(line)));
        }
        for (int notes = std::atoi(given["notes"].c_str()); notes > 0; --notes) {
            (notes % 2 == 0 ? fleet.notes : fleet.ships.front().notes) +=
                "note " + std::to_string(notes) + '\n';
        }
        for (int more = std::atoi(given["more"].c_str()); more > 0; --more) {
            fleet.ships.push_back(fleet.ships.back());
            rows.push_back(rows.back());
        }
        const PageSize paper = given["paper"] == "card" ? PageSize{leastRosterWidth, 160} : paperA4;
        PageDocument document;
        document.size = paper;
        eachRosterPage(fleet, rows, paper,
                       [&](const Page& page) { document.pages.push_back(page); });
        expectInsideMargins(document);
        return describedPages(document.pages);
    });
}
