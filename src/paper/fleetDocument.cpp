#include "fleetDocument.h"

#include "Error.h"
#include "FleetSum.h"
#include "rosterPages.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace fleetwright {

namespace {

/// Puts a name into the first line that begins with this.
void rename(std::string& text, std::string_view beginning, const std::string& name) {
    const std::size_t at = text.find(beginning);
    if (at != std::string::npos) {
        const std::size_t from = at + beginning.size();
        text.replace(from, std::min(text.find_first_of("\r\n", from), text.size()) - from, name);
    }
}

/// A sheet for each ship of a fleet.
SheetSeries seriesOf(const Fleet& fleet, const FleetSheets& sheets) {
    struct Named {
        std::size_t design;
        std::string name;
    };
    std::vector<Named> ships;
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        const FleetShip& ship = fleet.ships[i];
        for (std::int32_t one = 0; sheets[i] != nullptr && one < ship.count; ++one) {
            ships.push_back(
                {i, ownName(ship, static_cast<std::size_t>(one), sheets[i]->facts.shipName)});
        }
    }
    const std::size_t count = ships.size();
    return {count, [sheets, ships = std::move(ships)](std::size_t i) {
                return std::make_shared<const VectorSheet>(
                    renamedSheet(*sheets[ships[i].design], ships[i].name));
            }};
}

}  // namespace

VectorSheet renamedSheet(VectorSheet sheet, const std::string& name) {
    sheet.facts.shipName = name;
    rename(sheet.record.text, "Name: ", name);
    rename(sheet.shipFile, "Ship Name: ", name);
    return sheet;
}

void checkCanBePrinted(const Fleet& fleet) {
    if (const std::int64_t count = shipCount(fleet); count > mostSheets) {
        throw Error("a document has " + std::to_string(mostSheets) +
                    " sheets at the most, and the fleet has " + std::to_string(count) + " ships");
    }
}

PageDocument fleetDocument(const Fleet& fleet, const FleetRows& rows, const FleetSheets& sheets,
                           const SheetOptions& asked) {
    checkCanBePrinted(fleet);
    SheetOptions options = asked;
    const double scale = std::max(1.0, leastRosterWidth / asked.paper.width);
    options.paper = {asked.paper.width * scale, asked.paper.height * scale};
    PageDocument document = sheetDocument(seriesOf(fleet, sheets), options);
    document.pages = rosterPages(fleet, rows, document.size);
    const FleetSum sum = fleetSum(fleet, rows);
    document.title = fleet.name.empty() ? "Unnamed Fleet" : fleet.name;
    document.subject =
        "Fleet, " + std::to_string(sum.ships) + " ships, " + std::to_string(sum.points) + " points";
    return document;
}

}  // namespace fleetwright
