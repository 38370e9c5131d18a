#include "RecoveryRun.h"

#include "Error.h"
#include "RecoveryListing.h"
#include "fileCalls.h"
#include "readFile.h"
#include "saveFile.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// A record that cannot be read says nothing.
RecoveryRecord recordIn(const fs::path& file) {
    try {
        return RecoveryRecord::of(readBytes(file));
    } catch (const FileError&) {
        return {};
    }
}

}  // namespace

RecoveryRun::RecoveryRun(fs::path folder) : m_folder(std::move(folder)) {}

RecoveryRun::~RecoveryRun() {
    if (hasBegun()) {
        try {
            record.keepOnly(RecoveryListing(m_folder).recordNames());
            saveRecord();
        } catch (const FileError&) {
            // The record stays, and says more than there is.
        }
        [[maybe_unused]] const std::error_code left = removeFile(lockOf(m_mark));
    }
}

void RecoveryRun::begin(const RecoveryListing& listing) {
    do {
        m_mark = std::to_string(std::uint64_t{1} + std::random_device()());  // 0 is no run
        saveFile(lockOf(m_mark), "");
        m_lock.emplace(lockOf(m_mark));
    } while (m_lock->isLost());
    takeRecordsOver(listing);
}

void RecoveryRun::takeRecordsOver(const RecoveryListing& listing) {
    const std::set<std::string> goingOn = running(listing);
    std::vector<fs::path> taken;
    for (const fs::path& file : listing.records) {
        const std::string name = file.filename().string();
        if (!goingOn.contains(name.substr(std::string_view(recoveryRecord).size()))) {
            const RecoveryRecord found = recordIn(file);
            record.add(found);
            if (!found.isEmpty()) {  // what is no record may be anybody's
                taken.push_back(file);
            }
        }
    }
    record.keepOnly(listing.recordNames());
    if (saveRecord()) {
        std::for_each(taken.begin(), taken.end(), removeFile);
    }
}

bool RecoveryRun::saveRecord() const {
    try {
        if (record.isEmpty()) {
            return !removeFile(recordFile());
        }
        saveFile(recordFile(), record.text());
        return true;
    } catch (const FileError&) {
        return false;
    }
}

RecoveryRecord RecoveryRun::allRecords(const RecoveryListing& listing) const {
    RecoveryRecord all = record;
    for (const fs::path& file : listing.records) {
        all.add(recordIn(file));
    }
    return all;
}

std::set<std::string> RecoveryRun::running(const RecoveryListing& listing) const {
    std::set<std::string> marks;
    if (hasBegun()) {
        marks.insert(m_mark);
    }
    for (const fs::path& lock : listing.locks) {
        const std::string mark = lock.stem().string();
        if (mark != m_mark && isRunning(mark)) {
            marks.insert(mark);
        }
    }
    return marks;
}

fs::path RecoveryRun::lockOf(const std::string& mark) const {
    return m_folder / (mark + recoveryLock);
}

fs::path RecoveryRun::recordFile() const {
    return m_folder / (recoveryRecord + m_mark);
}

bool RecoveryRun::isRunning(const std::string& mark) const {
    const fs::path file = lockOf(mark);
    const FileLock lock(file);
    std::error_code unknown;
    if (lock.isHeld() && fs::is_empty(file, unknown)) {  // one with contents is a user's
        [[maybe_unused]] const std::error_code left = removeFile(file);
    }
    return lock.isWithOthers();
}

}  // namespace fleetwright
