#include "FleetTools.h"

#include "Error.h"
#include "Globals.h"
#include "ShipOnScreen.h"
#include "drawnSheet.h"
#include "fingerprint.h"
#include "fleetRows.h"
#include "fleetSheets.h"
#include "paths.h"
#include "playFleet.h"
#include "text.h"

#include <memory>
#include <optional>
#include <utility>

namespace fleetwright {

FleetTools::FleetTools(Services services) : m_services(std::move(services)) {}

FleetTools::~FleetTools() = default;

ShipOnScreen& FleetTools::screen() {
    if (!m_screen) {
        m_screen = std::make_unique<ShipOnScreen>(m_services.appFolder, m_services.catalogue);
    }
    return *m_screen;
}

FleetRow FleetTools::readShip(const std::string& ship) {
    try {
        return fleetRow(screen(), ship);
    } catch (const Error& error) {
        FleetRow row;
        row.faults.push_back({0, faultOf({}, error)});
        return row;
    }
}

std::string FleetTools::catalogue() {
    try {
        std::shared_ptr<const CatalogueText> now = m_services.catalogue.read();
        if (now != m_known) {
            m_fingerprint = fingerprint(now->text());
            m_known = std::move(now);
        }
        return m_fingerprint;
    } catch (const FileError&) {
        return {};
    }
}

FleetSheets FleetTools::sheets(const Fleet& fleet, const std::filesystem::path& folder) {
    const LoadedMaps maps = {.maps = m_services.globals.g_colSSDMaps,
                             .g_iLargestSSD = m_services.globals.g_iLargestSSD,
                             .dropped = m_services.globals.droppedMaps};
    const SheetTools tools = {.appFolder = m_services.appFolder,
                              .pictures =
                                  picturesReadOnce(m_services.appFolder, m_services.pictures),
                              .outlines = outlinesIn(m_services.pictures),
                              .encoder = m_services.encoder,
                              .drawings = m_services.drawings,
                              .maps = maps};
    m_leftOut.clear();
    // Of what does not load, the list says so already.
    return fleetSheets(fleet, folder, CatalogueFile::holding(m_services.catalogue.read()), tools,
                       [this](const std::string& ship, const Error& why) {
                           m_leftOut += (m_leftOut.empty() ? "" : ", ") +
                                        shownText(pathText(nativePath(ship).filename())) + " (" +
                                        why.what() + ')';
                       });
}

PagePrinter::Layout FleetTools::pages(const Fleet& fleet, const FleetRows& rows,
                                      const std::filesystem::path& folder) {
    const auto drawn = std::make_shared<std::optional<FleetSheets>>();
    return [this, fleet = std::make_shared<const Fleet>(fleet), rows, folder,
            drawn](const PageSize& paper) {
        FleetSeries series(*fleet, {.paper = paper, .perPage = sheetsToAPage});
        if (!*drawn) {
            *drawn = sheets(*fleet, folder);
        }
        const SheetOptions options = series.options();
        return fleetDocument(*fleet, rows, std::move(series).series(**drawn), options);
    };
}

std::string FleetTools::playPage(const Fleet& fleet, const std::filesystem::path& folder) {
    checkCanBePlayed(fleet);  // before all of it is drawn
    return fleetwright::playPage(playFleet(fleet, sheets(fleet, folder)), m_services.encoder);
}

}  // namespace fleetwright
