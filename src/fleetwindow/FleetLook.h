#pragma once

#include "FileStamp.h"
#include "FleetRow.h"

#include <cstddef>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace fleetwright {

/// What has become of the ships of a fleet: each file is read once, and again when it has changed.
/// Ships are read little by little, so that a fleet of thousands does not stop its window.
class FleetLook {
public:
    /// Reads the ship in a file, or in a code.
    using Read = std::function<FleetRow(const std::string& path)>;

    explicit FleetLook(Read read) : m_read(std::move(read)) {}

    /// Forgets all; the ships of the next fleet lie in and below this folder.
    void begin(std::filesystem::path folder);
    /// The rows of a fleet, as far as they are known. What is not has to be read.
    FleetRows rowsOf(const Fleet& fleet);
    /// Reads at least one ship that has to be read, and goes on until `isLate`.
    void readSome(const std::function<bool()>& isLate);
    /// How many ships have still to be read.
    std::size_t unread() const { return m_unread.size(); }
    /// Has all read again whose files have changed since they were read, and with another catalogue
    /// all of them. What is known stays known until then.
    void lookAgain(bool isCatalogueOther);

private:
    struct Known {
        std::string path;
        std::optional<FileStamp> stamp;
        std::shared_ptr<const FleetRow> row;
        bool isUnread = false;  ///< it waits to be read
    };

    std::string pathOf(const std::string& file) const;
    void want(const std::string& file, Known& known);

    Read m_read;
    std::filesystem::path m_folder;
    std::unordered_map<std::string, Known> m_known;  ///< by what the fleet calls a ship
    std::deque<std::string> m_unread;
};

}  // namespace fleetwright
