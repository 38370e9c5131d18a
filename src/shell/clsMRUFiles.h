#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace fleetwright {

class SettingsStore;

/// The ship files used last, most recent first, as bare names, and sheets among them by their
/// paths: to this list they are just texts. It reads them from the settings when it gets its name,
/// and writes them back when it ends.
class clsMRUFiles {
public:
    explicit clsMRUFiles(SettingsStore& settings) : m_settings(settings) {}
    clsMRUFiles(const clsMRUFiles&) = delete;
    clsMRUFiles& operator=(const clsMRUFiles&) = delete;
    ~clsMRUFiles();

    std::int16_t MaxFiles() const { return maxFiles; }
    const std::string& BaseName() const { return m_sBaseName; }
    /// The name of the application whose settings hold the list. It can be set once.
    void BaseName(const std::string& insArg);
    /// Puts a name at the top; the last one goes where it was not there before.
    void addFile(const std::string& insArg);
    /// The name at a place from 1 on; empty where there is none.
    std::string getFile(std::int16_t inout_iNDX) const;
    /// Empties the list, in the settings too. Throws FileError if they cannot be written.
    void clearList();

private:
    static constexpr std::int16_t maxFiles = 5;

    void loadList();
    void saveList();

    SettingsStore& m_settings;
    std::array<std::string, maxFiles> m_sFiles;
    std::string m_sBaseName;
};

}  // namespace fleetwright
