#include "FleetDocument.h"

#include "fleetFile.h"
#include "fleetPaths.h"

#include <utility>

namespace fleetwright {

namespace fs = std::filesystem;

FleetDocument::FleetDocument(fs::path folder) {
    begin({}, std::move(folder));
}

void FleetDocument::begin(Fleet fleet, fs::path folder) {
    const bool isEmpty = fleet == Fleet();
    m_fleet = std::move(fleet);
    m_folder = std::move(folder);
    m_file.clear();
    m_stamp.reset();
    noteWritten();
    m_history = FleetHistory(textOfSteps());
    m_saved = isEmpty ? std::optional(m_history.now()) : std::nullopt;
}

std::vector<Fault> FleetDocument::open(const fs::path& file) {
    const std::optional<FileStamp> stamp = fileStamp(file);
    ReadFleet read = readFleet(file);
    begin(std::move(read.fleet), file.parent_path());
    m_file = file;
    m_stamp = stamp;
    m_saved = m_history.now();
    return std::move(read.faults);
}

bool FleetDocument::isFileOther() const {
    std::optional<FileStamp> now = m_file.empty() ? m_stamp : fileStamp(m_file);
    if (now && m_stamp) {
        now->isFresh = m_stamp->isFresh;  // it grows old without anybody's doing
    }
    return now != m_stamp;
}

void FleetDocument::act(const FleetAct& act, const std::function<void(Fleet&)>& change,
                        std::int32_t time) {
    change(m_fleet);
    m_history.note(textOfSteps(), act, time);
}

void FleetDocument::save(const fs::path& file, const FleetRows& rows,
                         const std::string& catalogue) {
    Fleet written = m_fleet;
    written.catalogue = catalogue;
    for (std::size_t i = 0; i < written.ships.size() && i < rows.size(); ++i) {
        if (rows[i] && !rows[i]->fingerprint.empty()) {
            written.ships[i].fingerprint = rows[i]->fingerprint;
        }
    }
    moveFleet(written, m_folder, file.parent_path());
    saveFleet(file, written);
    m_file = file;
    m_stamp = fileStamp(file);
    m_history.endStep();
    m_saved = m_history.now();
    m_fleet.catalogue = written.catalogue;
    for (std::size_t i = 0; i < written.ships.size(); ++i) {
        m_fleet.ships[i].fingerprint = written.ships[i].fingerprint;
    }
    noteWritten();
}

std::string FleetDocument::textIn(const fs::path& otherFolder) const {
    Fleet moved = m_fleet;
    moveFleet(moved, m_folder, otherFolder);
    return fleetText(moved);
}

std::string FleetDocument::textOfSteps() const {
    Fleet plain = m_fleet;
    plain.catalogue.clear();
    for (FleetShip& ship : plain.ships) {
        ship.fingerprint.clear();
    }
    return fleetText(plain);
}

void FleetDocument::take(const std::string& text) {
    m_fleet = parseFleet(text).fleet;
    restoreWritten();
}

void FleetDocument::noteWritten() {
    m_writtenCatalogue = m_fleet.catalogue;
    m_written.clear();
    for (const FleetShip& ship : m_fleet.ships) {
        m_written[ship.file] = ship.fingerprint;
    }
}

void FleetDocument::restoreWritten() {
    m_fleet.catalogue = m_writtenCatalogue;
    for (FleetShip& ship : m_fleet.ships) {
        const auto written = m_written.find(ship.file);
        ship.fingerprint = written == m_written.end() ? std::string() : written->second;
    }
}

}  // namespace fleetwright
