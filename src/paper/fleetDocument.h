#pragma once

#include "FleetRow.h"
#include "sheetDocument.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace fleetwright {

/// The sheets of a fleet, one for each of its designs; null for one that has none.
using FleetSheets = std::vector<std::shared_ptr<const VectorSheet>>;

/// The most sheets of a document.
inline constexpr int mostSheets = 100'000;

/// How many small sheets share a page of a fleet, unless somebody asks for less.
inline constexpr int sheetsToAPage = 4;

/// Throws Error for a fleet of more ships than that.
void checkCanBePrinted(const Fleet& fleet);

/// The sheets of a fleet on their way into a document: one for each ship under its own name. What
/// the document has to know of them is noted once, in any order, so that no sheet has to be kept.
class FleetSeries {
public:
    /// What is handed in outlives this. On smaller paper the roster has no room: then the pages
    /// have the shape of that paper, for whoever shrinks them. Throws Error for more than
    /// `mostSheets`.
    FleetSeries(const Fleet& fleet, const SheetOptions& asked);

    /// Notes the sheets of all ships of a `FleetShip`, by its place in the fleet, that has this
    /// design. Any number of threads may do so for different ones; what has no sheet is not noted.
    void note(std::size_t ship, const VectorSheet& design);
    /// The series, if these make the sheet of a noted design anew, and the ship file in it.
    SheetSeries series(std::function<std::shared_ptr<const VectorSheet>(std::size_t ship)> design,
                       std::function<std::string(std::size_t ship)> shipFile) &&;
    /// The same for sheets that are kept, none of which has been noted yet.
    SheetSeries series(const FleetSheets& sheets) &&;

    const SheetOptions& options() const { return m_options; }

private:
    struct Ship {
        std::size_t design;  ///< its place in the fleet
        std::string name;
        SheetNote note;
    };

    const Fleet& m_fleet;
    SheetOptions m_options;
    std::vector<std::vector<Ship>> m_ships;  ///< of each `FleetShip`
};

/// A fleet as a document: the roster, and behind it the sheets. All pages are made when they are
/// asked for. There is a row for each design of the fleet, which outlives the document.
PageDocument fleetDocument(const Fleet& fleet, const FleetRows& rows, SheetSeries sheets,
                           const SheetOptions& options);

}  // namespace fleetwright
