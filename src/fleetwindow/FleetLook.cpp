#include "FleetLook.h"

#include "designCode.h"
#include "fleetPaths.h"
#include "paths.h"

#include <utility>

namespace fleetwright {

namespace {

/// Where a ship is now, and in which state its file is.
std::optional<FileStamp> stampOf(const std::string& path) {
    return isDesignCode(path) ? std::nullopt : fileStamp(nativePath(path));
}

}  // namespace

void FleetLook::begin(std::filesystem::path folder) {
    m_folder = std::move(folder);
    m_known.clear();
    m_unread.clear();
}

FleetRows FleetLook::rowsOf(const Fleet& fleet) {
    FleetRows rows;
    rows.reserve(fleet.ships.size());
    for (const FleetShip& ship : fleet.ships) {
        const auto [known, isNew] = m_known.try_emplace(ship.file);
        if (isNew) {
            want(ship.file, known->second);
        }
        rows.push_back(known->second.row);
    }
    return rows;
}

std::string FleetLook::pathOf(const std::string& file) const {
    FleetShip ship;
    ship.file = file;
    return shipPath(m_folder, ship);
}

void FleetLook::want(const std::string& file, Known& known) {
    if (!std::exchange(known.isUnread, true)) {
        m_unread.push_back(file);
    }
}

void FleetLook::readSome(const std::function<bool()>& isLate) {
    while (!m_unread.empty()) {
        const std::string file = std::move(m_unread.front());
        m_unread.pop_front();
        Known& known = m_known[file];
        known.isUnread = false;
        known.path = pathOf(file);
        known.stamp = stampOf(known.path);
        known.row = std::make_shared<const FleetRow>(m_read(known.path));
        if (isLate()) {
            break;
        }
    }
}

void FleetLook::lookAgain(bool isCatalogueOther) {
    for (auto& [file, known] : m_known) {
        const std::string path = pathOf(file);
        const std::optional<FileStamp> stamp = stampOf(path);
        // A fresh file may have been written once more without a change of its stamp.
        const bool isFresh = known.stamp && known.stamp->isFresh;
        if (isCatalogueOther || isFresh || path != known.path || stamp != known.stamp) {
            want(file, known);
        }
    }
}

}  // namespace fleetwright
