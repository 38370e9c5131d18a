#pragma once

#include "FileLock.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

/// Where designs are put aside, so that none is lost: the one at work again and again, as the file
/// of this run, and every other that was given up without being saved. A file is named by ship and
/// time, "Provost 2026-05-01 17.03.59.shp". That of a run has the run's mark behind it, and there
/// is a file "MARK.lock", which the run holds locked.
class RecoveryFolder {
public:
    /// One design that was put aside.
    struct Design {
        std::string name;  ///< of ship and time
        std::filesystem::path file;
    };

    /// How many designs are kept for good; the oldest go.
    static constexpr std::size_t mostKept = 10;

    /// The user's folder of designs put aside, which need not exist yet. Throws FileError if the
    /// user has no home.
    static std::filesystem::path ofUser();

    /// `now` says the time as it is to stand in the name of a file.
    RecoveryFolder(std::filesystem::path folder, std::function<std::string()> now);
    RecoveryFolder(const RecoveryFolder&) = delete;
    RecoveryFolder& operator=(const RecoveryFolder&) = delete;
    ~RecoveryFolder();

    /// Keeps what runs that have crashed have left: these designs, the newest first.
    /// Throws FileError as `list` does.
    std::vector<Design> keepLeftBehind();
    /// Writes the design at work as the file of this run. Throws FileError.
    void put(const std::string& shipName, const std::string& shipFile);
    /// Keeps the file of this run, if there is one, for good.
    void keep();
    /// Takes the file of this run away, if there is one.
    void forget();

    /// All designs in a folder, the newest first. Throws FileError if the folder is there and
    /// cannot be read.
    static std::vector<Design> list(const std::filesystem::path& folder);

private:
    void takeMark();
    std::filesystem::path lockOf(const std::string& mark) const;
    bool isRunning(const std::string& mark) const;
    std::filesystem::path keepFile(const std::filesystem::path& file);
    void takeOldestAway();

    std::filesystem::path m_folder;
    std::function<std::string()> m_now;
    std::string m_mark;  ///< of this run; empty before its first file
    std::optional<FileLock> m_lock;
    std::filesystem::path m_ownFile;
    std::string m_ownShip;  ///< as it stands in the name of that file
};

}  // namespace fleetwright
