#pragma once

#include "SSDMap.h"
#include "SheetLists.h"
#include "TemporaryFolder.h"
#include "drawSSD.h"
#include "testShip.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace fleetwright {

/// An application folder with maps.
class MapFolder {
public:
    const std::filesystem::path& path() const { return m_folder.path(); }
    /// Writes the map file of this name, without its ending.
    void write(const std::string& name, std::string_view text) const {
        m_folder.write("maps/" + name + ".map", text);
    }
    void writeFile(const std::string& name, std::string_view text) const {
        m_folder.write(name, text);
    }
    std::string read(const std::string& name) const { return m_folder.read(name); }
    /// A map with this text, loaded.
    SSDMap map(std::string_view text) const;

private:
    TemporaryFolder m_folder;
};

/// A catalogue in which the name of a system is its arcs, "Hidden" and "Listed" are not painted,
/// and there is a "Damage Control Party".
extern const std::string_view arcCatalogue;

/// Rows of the list of systems aboard.
std::vector<ListView::Row> rows(std::initializer_list<std::pair<const char*, const char*>> systems);

}  // namespace fleetwright
