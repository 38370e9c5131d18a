#pragma once

// Sheets as pages: the drawing, the text, and what a player wants to know at the table.

#include "FirePower.h"
#include "ListView.h"
#include "PageDocument.h"
#include "SheetImages.h"
#include "SheetRecord.h"
#include "drawSSD.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

class SSDMap;
struct KeptSheetParts;

/// One line of the legend: a system aboard, with all its pieces.
struct LegendRow {
    SheetRecord::Picture picture;
    std::string name;
    std::int32_t count = 0;
    std::int32_t withHull = 0;  ///< of these pieces, which take no mass and cost nothing
    std::string arcs;  ///< in words, as "fore, port"; empty for a system with no place on the sheet
    std::int32_t mass = 0;    ///< of all pieces, mass units
    std::int32_t points = 0;  ///< of all pieces
    bool isLinear = false;    ///< whether each of them takes as much as one alone would
    std::string rules;        ///< one sentence or two, or nothing
};

/// What a sheet says besides its drawing.
struct SheetFacts {
    std::string shipName;  ///< "Unnamed Ship" if it has no name
    std::string designer;
    std::string shipClass;    ///< as "Cruiser"
    std::string designation;  ///< as "Heavy Cruiser"
    std::string hull;         ///< as "Warship"
    std::int32_t mass = 0;    ///< mass units
    std::int32_t points = 0;
    std::string thrust;  ///< in words
    std::string drive;   ///< in words
    std::int32_t damagePoints = 0;
    std::int32_t damageRows = 0;
    std::string armor;         ///< in words; empty if there is none
    std::string streamlining;  ///< in words; empty if there is none
    FirePower fire;
    std::vector<LegendRow> legend;
};

/// A ship's sheet, ready for any paper.
struct VectorSheet {
    SheetRecord record;
    SheetFacts facts;
    std::int32_t mapMass = 0;          ///< SIZE of the map that it is drawn on
    std::string shipFile;              ///< the text of the ship file that it carries
    std::optional<std::int64_t> date;  ///< of the ship file, seconds since 1970
};

/// What sheets are made of. What it refers to outlives the call that it is handed to.
struct SheetSources {
    OutlineFinder outlines;
    const SheetImages& images;
    const Drawings& drawings;
};

/// The sheet of a ship on a map, placed by `drawSSD`, which also says what fails. The ship has
/// these systems aboard, as the main window lists them. Throws Error.
VectorSheet vectorSheet(const SheetShip& ship, const std::vector<ListView::Row>& lvCurrentWeapons,
                        const SSDMap& map, const SheetSources& sources);

struct SheetOptions {
    PageSize paper = paperA4;
    /// 1, 2 or 4 sheets a page, where they are small enough for that. Small ones go to a page that
    /// has room for them, so that large ones between them do not part them.
    int perPage = 1;
    bool isPlain = false;  ///< the drawing and its text alone
    /// For whoever makes many documents; null if nothing is kept.
    KeptSheetParts* kept = nullptr;
};

/// Columns and rows that a page can be cut into, for sheets that share it.
struct PageCut {
    int columns;
    int rows;
};
inline constexpr std::array<PageCut, 3> pageCuts = {{{2, 1}, {1, 2}, {2, 2}}};

/// What a document has to know of a sheet before it makes its pages.
struct SheetNote {
    std::bitset<pageCuts.size()> fits;  ///< the cuts of which a part is large enough for it
    std::string designer;
    std::size_t shipFileSize = 0;  ///< of what it carries, in bytes
    std::optional<std::int64_t> date;
};

/// That of a sheet in a document with these options.
SheetNote noteOf(const VectorSheet& sheet, const SheetOptions& asked);

/// Sheets that are made when they are wanted, for documents of so many that they cannot all be
/// kept.
struct SheetSeries {
    std::vector<SheetNote> notes;  ///< one for each
    /// Makes one of them, the same whenever it is asked.
    std::function<std::shared_ptr<const VectorSheet>(std::size_t)> at;
    std::function<std::string(std::size_t)> shipFile;  ///< which it carries
};

/// The sheets as pages, which are 100 mm wide and high at the least: whoever has smaller paper
/// shrinks them.
PageDocument sheetDocument(const std::vector<VectorSheet>& sheets, const SheetOptions& asked);

/// The same of a series, with the options that its notes were made with. Its pages are made when
/// they are asked for.
PageDocument sheetDocument(SheetSeries sheets, const SheetOptions& asked);

}  // namespace fleetwright
