#include "fleetDocument.h"

#include "FleetSum.h"
#include "rosterPages.h"

#include <algorithm>
#include <iterator>
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

}  // namespace

VectorSheet renamedSheet(VectorSheet sheet, const std::string& name) {
    sheet.facts.shipName = name;
    rename(sheet.record.text, "Name: ", name);
    rename(sheet.shipFile, "Ship Name: ", name);
    return sheet;
}

PageDocument fleetDocument(const Fleet& fleet, const FleetRows& rows,
                           const std::vector<const VectorSheet*>& sheets,
                           const SheetOptions& options) {
    std::vector<VectorSheet> wanted;
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        const FleetShip& ship = fleet.ships[i];
        for (std::int32_t one = 0; sheets[i] != nullptr && one < ship.count; ++one) {
            const std::string& shipName = sheets[i]->facts.shipName;
            wanted.push_back(
                renamedSheet(*sheets[i], ownName(ship, static_cast<std::size_t>(one), shipName)));
        }
    }
    PageDocument document = sheetDocument(wanted, options);
    std::vector<Page> pages = rosterPages(fleet, rows, document.size);
    std::move(document.pages.begin(), document.pages.end(), std::back_inserter(pages));
    document.pages = std::move(pages);
    const FleetSum sum = fleetSum(fleet, rows);
    document.title = fleet.name.empty() ? "Unnamed Fleet" : fleet.name;
    document.subject =
        "Fleet, " + std::to_string(sum.ships) + " ships, " + std::to_string(sum.points) + " points";
    return document;
}

}  // namespace fleetwright
