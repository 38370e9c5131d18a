#include "FleetDocument.h"

#include "Error.h"
#include "RecoverySteps.h"
#include "base64.h"
#include "fleetFile.h"
#include "fleetPaths.h"
#include "paths.h"
#include "readFile.h"
#include "text.h"

#include <optional>
#include <string_view>
#include <utility>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view stepsTitle = "FleetWright fleet steps 1";

bool holds(const fs::path& file, const std::string& text) {
    try {
        return readBytes(file) == text;
    } catch (const FileError&) {
        return false;
    }
}

}  // namespace

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
    m_textsOfSteps = {};
    m_history = FleetHistory(textOfSteps());
    m_saved = isEmpty ? std::optional(m_history.now()) : std::nullopt;
}

bool FleetDocument::beginAside(Fleet fleet, const fs::path& folder, const std::string& steps) {
    begin(std::move(fleet), folder);
    const bool isWell = steps.empty() || adopt(steps);
    m_saved.reset();
    return isWell;
}

std::string FleetDocument::steps() const {
    std::string lines = toBase64(pathText(m_folder), Base64Lines::One) + '\n';
    for (const std::string& text : m_history.stored()) {
        lines += toBase64(text, Base64Lines::One) + '\n';
    }
    return sealedSteps(stepsTitle, lines);
}

/// Takes the steps that were put aside with the fleet at hand. Its ships are then named from where
/// they were named before.
bool FleetDocument::adopt(const std::string& steps) {
    const std::optional<std::string_view> lines = linesOfSteps(stepsTitle, steps);
    std::vector<std::string> texts;
    LineReader reader(lines.value_or(std::string_view()));
    for (std::string_view line; reader.next(line);) {
        texts.push_back(fromBase64(line).value_or(""));
    }
    if (texts.empty()) {
        return false;
    }
    const fs::path folder = nativePath(texts.front());
    texts.erase(texts.begin());
    std::optional<FleetHistory> history = FleetHistory::of(texts);
    if (!history) {
        return false;
    }
    // They were written first: a crash may have parted them from the fleet of a moment later.
    const std::string wanted = textOfSteps();
    const auto isHere = [&] {
        Fleet moved = parseFleet(history->now()).fleet;
        try {
            moveFleet(moved, folder, m_folder);
        } catch (const FileError&) {
            return false;  // such a name is in none of our files
        }
        return fleetText(moved) == wanted;
    };
    while (!isHere()) {
        if (!history->canUndo()) {
            return false;
        }
        history->undo();
    }
    const Fleet read = std::exchange(m_fleet, parseFleet(history->now()).fleet);
    m_fleet.catalogue = read.catalogue;
    for (std::size_t i = 0; i < m_fleet.ships.size(); ++i) {
        m_fleet.ships[i].fingerprint = read.ships[i].fingerprint;
    }
    m_folder = folder;
    m_history = *std::move(history);
    noteWritten();
    return true;
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
    try {
        saveFleet(file, written);
    } catch (const FileError&) {
        // It may be there all the same, but not for sure. Then nobody else has changed the file.
        if (file == m_file && holds(file, fleetText(written))) {
            m_stamp = fileStamp(file);
        }
        throw;
    }
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
    return fleetText(plain, m_textsOfSteps);
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
