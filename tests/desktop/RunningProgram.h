#pragma once

#include "TemporaryFolder.h"

#include <sys/types.h>

#include <string>

namespace fleetwright {

/// The delivered program, in an application folder, with settings and user's data of its own. It
/// ends with this object.
class RunningProgram {
public:
    /// Copies the application folder, as it is before the first start.
    RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram();

    const TemporaryFolder& folder() const { return m_folder; }
    /// Where it keeps what belongs to its user.
    std::filesystem::path dataHome() const { return m_folder.path() / "data"; }
    void start();
    bool isRunning();
    /// Ends it without giving it a chance to do anything about it.
    void crash();
    /// Waits for its end; its exit status.
    int waitForEnd();

private:
    TemporaryFolder m_folder;
    pid_t m_process = 0;  ///< 0 while it does not run
    int m_status = 0;     ///< the exit status, or the number of a signal as a negative number
    bool m_isAwaited = false;
};

}  // namespace fleetwright
