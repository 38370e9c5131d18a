#include "fleetDocument.h"

#include "Error.h"
#include "FleetSum.h"
#include "ShipFileLine.h"
#include "eachRosterPage.h"

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

/// A ship file under another name.
std::string renamedShip(std::string shipFile, const std::string& name) {
    rename(shipFile, shipLine(ShipKey::ShipName), name);
    return shipFile;
}

VectorSheet renamedSheet(VectorSheet sheet, const std::string& name) {
    sheet.facts.shipName = name;
    rename(sheet.record.text, "Name: ", name);
    sheet.shipFile = renamedShip(std::move(sheet.shipFile), name);
    return sheet;
}

}  // namespace

void checkCanBePrinted(const Fleet& fleet) {
    if (const std::int64_t count = shipCount(fleet); count > mostSheets) {
        throw Error("a document has " + std::to_string(mostSheets) +
                    " sheets at the most, and the fleet has " + std::to_string(count) + " ships");
    }
}

FleetSeries::FleetSeries(const Fleet& fleet, const SheetOptions& asked)
    : m_fleet(fleet), m_options(asked), m_ships(fleet.ships.size()) {
    checkCanBePrinted(fleet);
    const double scale = std::max(1.0, leastRosterWidth / asked.paper.width);
    m_options.paper = {asked.paper.width * scale, asked.paper.height * scale};
}

void FleetSeries::note(std::size_t ship, const VectorSheet& design) {
    for (std::int32_t one = 0; one < m_fleet.ships[ship].count; ++one) {
        std::string name =
            ownName(m_fleet.ships[ship], static_cast<std::size_t>(one), design.facts.shipName);
        SheetNote note = noteOf(renamedSheet(design, name), m_options);
        m_ships[ship].push_back({ship, std::move(name), std::move(note)});
    }
}

SheetSeries
FleetSeries::series(std::function<std::shared_ptr<const VectorSheet>(std::size_t)> design,
                    std::function<std::string(std::size_t)> shipFile) && {
    SheetSeries series;
    auto ships = std::make_shared<std::vector<Ship>>();
    for (std::vector<Ship>& some : std::exchange(m_ships, {})) {
        for (Ship& ship : some) {
            series.notes.push_back(std::move(ship.note));
            ships->push_back(std::move(ship));
        }
    }
    series.at = [design = std::move(design), ships](std::size_t i) {
        const Ship& ship = (*ships)[i];
        return std::make_shared<const VectorSheet>(renamedSheet(*design(ship.design), ship.name));
    };
    series.shipFile = [shipFile = std::move(shipFile), ships](std::size_t i) {
        const Ship& ship = (*ships)[i];
        return renamedShip(shipFile(ship.design), ship.name);
    };
    return series;
}

SheetSeries FleetSeries::series(const FleetSheets& sheets) && {
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        if (sheets[i]) {
            note(i, *sheets[i]);
        }
    }
    return std::move(*this).series([sheets](std::size_t ship) { return sheets[ship]; },
                                   [sheets](std::size_t ship) { return sheets[ship]->shipFile; });
}

PageDocument fleetDocument(const Fleet& fleet, const FleetRows& rows, SheetSeries sheets,
                           const SheetOptions& options) {
    PageDocument document = sheetDocument(std::move(sheets), options);
    document.morePages = [&fleet, rows, size = document.size,
                          sheetPages = document.morePages](const PageTaker& take) {
        eachRosterPage(fleet, rows, size, take);
        sheetPages(take);
    };
    const FleetSum sum = fleetSum(fleet, rows);
    document.title = fleet.name.empty() ? "Unnamed Fleet" : fleet.name;
    document.subject =
        "Fleet, " + std::to_string(sum.ships) + " ships, " + std::to_string(sum.points) + " points";
    return document;
}

}  // namespace fleetwright
