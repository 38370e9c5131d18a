#pragma once

#include <cstdint>
#include <filesystem>

namespace fleetwright {

/// Says to other runs of the program that this one works on a file or a folder, and learns it of
/// them. A lock ends with its run, however that ends, so what a kill has left behind is known by
/// being free. Where there are no such locks, nothing is ever held by anybody.
class FileLock {
public:
    enum class IfTaken { GiveUp, Wait };

    /// Locks the file or folder that stands there: at once or not at all, or else after as long as
    /// others work on it.
    explicit FileLock(const std::filesystem::path& path, IfTaken ifTaken = IfTaken::GiveUp);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    /// Whether this is the lock, and no other run works on it.
    bool isHeld() const { return m_state == State::Held; }
    /// Whether another run works on it.
    bool isWithOthers() const { return m_state == State::WithOthers; }
    /// Whether another run has taken for one left behind what this one has just made there: it is
    /// with others, or gone already. To be made once more.
    bool isLost() const { return isWithOthers() || m_state == State::Gone; }

private:
    enum class State { Held, WithOthers, Gone, Unknown };

    std::intptr_t m_file = -1;  // by which the system knows it
    State m_state = State::Unknown;
};

}  // namespace fleetwright
