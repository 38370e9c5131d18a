#pragma once

#include <filesystem>
#include <string>

namespace fleetwright {

/// What a command has said, on both streams, and its exit status.
struct CommandResult {
    int status = -1;
    std::string output;
};

/// Runs a command in the shell and waits for its end.
CommandResult runCommand(const std::string& command);

/// A folder that is there for the length of a test.
class ScratchFolder {
public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    const std::filesystem::path& path() const { return m_path; }

    /// How many entries it has.
    int count() const;

private:
    std::filesystem::path m_path;
};

}  // namespace fleetwright
