#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace fleetwright {

/// A folder of its own for one test, gone with it.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& path() const { return m_path; }

    /// Writes a file below the folder, byte for byte; its path.
    std::string write(const std::string& name, std::string_view contents) const;
    /// The bytes of a file below the folder; empty if there is none.
    std::string read(const std::string& name) const;
    /// Number of entries in the folder itself.
    int entries() const;

private:
    std::filesystem::path m_path;
};

}  // namespace fleetwright
