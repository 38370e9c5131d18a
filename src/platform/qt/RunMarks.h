#pragma once

#include <QLockFile>

#include <filesystem>
#include <string>

namespace fleetwright {

/// Tells the running programs of a user apart: each holds a lock under its own mark, which ends
/// with the program however it ends.
class RunMarks {
public:
    /// `folder` is made if it is not there.
    explicit RunMarks(std::filesystem::path folder);

    const std::string& own() const { return m_own; }
    /// Whether the program with this mark still runs.
    bool isRunning(const std::string& mark) const;

private:
    QString lockOf(const std::string& mark) const;

    std::filesystem::path m_folder;
    std::string m_own;
    QLockFile m_lock;
};

}  // namespace fleetwright
