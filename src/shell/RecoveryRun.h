#pragma once

#include "FileLock.h"
#include "RecoveryRecord.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>

namespace fleetwright {

struct RecoveryListing;

/// A run of the program, as other runs see it in a folder of designs put aside: its mark, the file
/// "MARK.lock" that it holds locked, and the file ".record-MARK" with what it knows. Each writes
/// its own record only, so runs do not get into each other's way; one that begins takes over what
/// those that have ended have left.
class RecoveryRun {
public:
    explicit RecoveryRun(std::filesystem::path folder);
    RecoveryRun(const RecoveryRun&) = delete;
    RecoveryRun& operator=(const RecoveryRun&) = delete;
    ~RecoveryRun();

    /// Leaves the first trace in the folder, where there was this. Throws FileError.
    void begin(const RecoveryListing& listing);
    bool hasBegun() const { return m_lock.has_value(); }
    /// Empty before the run has begun.
    const std::string& mark() const { return m_mark; }

    /// What this run knows.
    RecoveryRecord record;
    /// Writes it down, if that is possible. What is not noted is not known to be ours, and so is
    /// never taken away: no design has to wait for its record.
    bool saveRecord() const;
    /// What all runs know together.
    RecoveryRecord allRecords(const RecoveryListing& listing) const;

    /// The marks of the runs that go on. Only those are asked that have left a lock; the locks of
    /// those that have ended are taken away.
    std::set<std::string> running(const RecoveryListing& listing) const;

private:
    std::filesystem::path lockOf(const std::string& mark) const;
    std::filesystem::path recordFile() const;
    bool isRunning(const std::string& mark) const;
    void takeRecordsOver(const RecoveryListing& listing);

    std::filesystem::path m_folder;
    std::string m_mark;
    std::optional<FileLock> m_lock;
};

}  // namespace fleetwright
