#include "FleetTools.h"

#include "Error.h"
#include "ShipOnScreen.h"
#include "fingerprint.h"
#include "fleetRows.h"

#include <utility>

namespace fleetwright {

FleetTools::FleetTools(std::filesystem::path appFolder, CatalogueFile catalogue)
    : m_appFolder(std::move(appFolder)), m_catalogue(std::move(catalogue)) {}

FleetTools::~FleetTools() = default;

FleetRow FleetTools::readShip(const std::string& ship) {
    try {
        if (!m_screen) {
            m_screen = std::make_unique<ShipOnScreen>(m_appFolder, m_catalogue);
        }
        return fleetRow(*m_screen, ship);
    } catch (const Error& error) {
        FleetRow row;
        row.faults.push_back({0, faultOf({}, error)});
        return row;
    }
}

std::string FleetTools::catalogue() {
    try {
        std::shared_ptr<const CatalogueText> now = m_catalogue.read();
        if (now != m_known) {
            m_fingerprint = fingerprint(now->text());
            m_known = std::move(now);
        }
        return m_fingerprint;
    } catch (const FileError&) {
        return {};
    }
}

}  // namespace fleetwright
