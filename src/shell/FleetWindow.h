#pragma once

#include <filesystem>
#include <string>

namespace fleetwright {

/// The ship in the main window, as a fleet can take it.
struct ShipAtHand {
    std::string name;
    std::string file;        ///< the one that it is in; empty if it is in none
    std::string code;        ///< the design as it is now
    bool isChanged = false;  ///< since it was in the file
};

/// The window of fleets, as the main window knows it.
class FleetWindow {
public:
    virtual ~FleetWindow() = default;

    /// Opens it, or brings it to the front.
    virtual void bringUp() = 0;
    /// Shows the fleet in a file, instead of the one at hand if the user lets that go.
    virtual void openFleet(const std::string& file) = 0;
    /// The same for a fleet that was put aside: one without a file, and not saved.
    virtual void openPutAside(const std::filesystem::path& file) = 0;
    /// Looks at the ships again: one of their files may have changed.
    virtual void lookAgain() = 0;
    /// Closes it; false if the user does not let the fleet at hand go.
    virtual bool end() = 0;
};

}  // namespace fleetwright
