#pragma once

#include "Fault.h"
#include "FileStamp.h"
#include "Fleet.h"
#include "FleetHistory.h"
#include "FleetRow.h"
#include "fleetFile.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

/// The fleet at hand, its file, and how it has become what it is.
///
/// Which texts the ships had when the fleet was written (their fingerprints) is no work of the
/// user's: it is none of the steps, and stays as it is when those are undone.
class FleetDocument {
public:
    /// An empty fleet whose ships lie in and below a folder.
    explicit FleetDocument(std::filesystem::path folder);

    /// Begins another one: `fleet` names its ships from `folder` on. One without a file counts as
    /// saved only if it is empty.
    void begin(Fleet fleet, std::filesystem::path folder);
    /// The same for one that was put aside in a folder, with the steps that were put aside with it:
    /// they are its steps again. False if there are some that do not lead to this fleet.
    bool beginAside(Fleet fleet, const std::filesystem::path& folder, const std::string& steps);
    /// The same for the one in a file. Throws FileError, with the fleet at hand as it was.
    std::vector<Fault> open(const std::filesystem::path& file);

    const Fleet& fleet() const { return m_fleet; }
    /// From where the fleet at hand names its ships. It stays when the fleet gets another file.
    const std::filesystem::path& folder() const { return m_folder; }
    const std::filesystem::path& file() const { return m_file; }  ///< empty if it has none
    bool isSaved() const { return m_saved == m_history.now(); }
    /// Whether somebody else has changed the file since it was read or saved, or taken it away.
    bool isFileOther() const;

    /// Changes the fleet, as one step or a part of one. `time` as a Clock counts it.
    void act(const FleetAct& act, const std::function<void(Fleet&)>& change, std::int32_t time);
    const FleetHistory& history() const { return m_history; }
    /// Goes a step back or forth, which there must be.
    void undo() { take(m_history.undo()); }
    void redo() { take(m_history.redo()); }

    /// Writes the fleet, with the ships and the catalogue as they are now. Throws FileError.
    void save(const std::filesystem::path& file, const FleetRows& rows,
              const std::string& catalogue);
    /// All of it, as a file in that folder.
    std::string textIn(const std::filesystem::path& otherFolder) const;
    /// Its steps, to be put aside. docs/file-formats.md describes the text.
    std::string steps() const;

private:
    std::string textOfSteps() const;
    bool adopt(const std::string& steps);
    void take(const std::string& text);
    void noteWritten();
    void restoreWritten();

    Fleet m_fleet;
    std::filesystem::path m_folder, m_file;
    std::optional<FileStamp> m_stamp;  ///< of the file as it was read or saved
    FleetHistory m_history;
    std::optional<std::string> m_saved;  ///< the text of steps that is in the file
    std::string m_writtenCatalogue;
    std::map<std::string, std::string> m_written;  ///< fingerprints by the file
    mutable WrittenShips m_textsOfSteps;           ///< the ships of the last text of steps
};

}  // namespace fleetwright
