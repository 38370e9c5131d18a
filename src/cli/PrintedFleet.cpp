#include "PrintedFleet.h"

#include "documentDate.h"
#include "pageOptions.h"
#include "paths.h"
#include "pdfFile.h"
#include "saveResult.h"

#include <utility>

namespace fleetwright {

namespace {

SheetOptions pagesOf(const Options& options, KeptSheetParts& kept) {
    SheetOptions pages = sheetOptionsOf(options, sheetsToAPage);
    pages.kept = &kept;
    return pages;
}

}  // namespace

PrintedFleet::PrintedFleet(const Options& options, const Fleet& fleet, const FleetFiles& files,
                           const SheetTools& tools, const CatalogueFile& catalogue)
    : m_options(options), m_fleet(fleet), m_files(files), m_shipsOf(files.paths.size()),
      m_sheets(files.paths.size(), tools, catalogue), m_series(fleet, pagesOf(options, m_kept)) {
    for (std::size_t ship = 0; ship < files.ofShip.size(); ++ship) {
        m_shipsOf[files.ofShip[ship]].push_back(ship);
    }
}

void PrintedFleet::draw(std::size_t file, const ShipOnScreen& screen) {
    const VectorSheet sheet = m_sheets.draw(file, screen);
    for (const std::size_t ship : m_shipsOf[file]) {
        m_series.note(ship, sheet);
    }
}

void PrintedFleet::save(const std::filesystem::path& file, const FleetRows& rows) && {
    const SheetOptions pages = m_series.options();
    SheetSeries sheets = std::move(m_series).series(
        [this](std::size_t ship) { return m_sheets.at(m_files.ofShip[ship]); },
        [this](std::size_t ship) { return m_sheets.shipFile(m_files.ofShip[ship]); });
    PageDocument document = fleetDocument(m_fleet, rows, std::move(sheets), pages);
    document.date = documentDate(nativePath(m_options.words.front()));
    saveResult(file, FileContents([&](const FileOut& out) { writePdf(document, out); }));
}

}  // namespace fleetwright
