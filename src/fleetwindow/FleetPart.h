#pragma once

#include "Fleet.h"
#include "FleetDocument.h"
#include "FleetRow.h"
#include "FleetSum.h"
#include "FleetWindow.h"
#include "Form.h"
#include "PagePrinter.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace fleetwright {

class Clock;
class Desktop;
class RecoveryFolder;
class SheetOutput;

/// What the window of fleets needs of the world around it. All of it outlives the window.
struct FleetServices {
    std::filesystem::path appFolder;
    Desktop& desktop;
    Clock& clock;
    const bool& confirmsExit;  ///< whether a window asks before it closes with unsaved work
    RecoveryFolder& recovery;  ///< where fleets are put aside
    /// Whether ships can be read: not while the main window is in the midst of a load, since what
    /// reads their lines keeps some of it for the next one.
    std::function<bool()> canReadShips;
    /// What is now in a ship file, a sheet or a code.
    std::function<FleetRow(const std::string& ship)> readShip;
    std::function<std::string()> catalogue;  ///< the fingerprint of the one that holds now
    std::function<ShipAtHand()> shipAtHand;  ///< may throw Error
    std::function<void(const std::string& ship)> openShip;  ///< in the main window
    std::function<const SheetOutput&()> sheets;
    /// The roster and the sheets of a fleet whose ships lie in and below a folder, for whatever
    /// paper: what is returned draws the sheets when it is first asked, and throws Error.
    std::function<PagePrinter::Layout(const Fleet&, const FleetRows&,
                                      const std::filesystem::path& folder)>
        pages;
    /// A page for a browser, in which such a fleet is played. Throws Error.
    std::function<std::string(const Fleet&, const std::filesystem::path& folder)> playPage;
    /// Which ships the last of both has left out, and why; empty if none.
    std::function<std::string()> leftOut = [] { return std::string(); };
};

/// What the parts of the window know of it.
struct FleetContext {
    Form& form;
    FleetDocument& document;
    const FleetServices& services;
    const FleetRows& rows;  ///< of the fleet's ships, as far as they are known
    const FleetSum& sum;
    std::function<std::size_t()> unread;  ///< how many ships are not known yet
    /// Changes the fleet and shows it.
    std::function<void(const FleetAct&, const std::function<void(Fleet&)>&)> act;
    std::function<void()> refresh;                ///< copies the fleet to all controls
    std::function<void(const std::string&)> say;  ///< puts a text on the status line
    /// Takes a text off the status line, if it still stands there.
    std::function<void(const std::string&)> takeBack;
    /// Copies the fleet to all controls when another one has taken its place.
    std::function<void()> restart;
};

/// A part of the window of fleets: its controls, their handlers, and the rules of what they are
/// about. `show` copies the fleet to the controls; while it does, what they write is no act.
class FleetPart {
public:
    FleetPart(const FleetPart&) = delete;
    FleetPart& operator=(const FleetPart&) = delete;

protected:
    explicit FleetPart(const FleetContext& context) : m_window(context) {}
    ~FleetPart() = default;

    const FleetContext& window() const { return m_window; }
    Form& form() const { return m_window.form; }
    const FleetServices& services() const { return m_window.services; }
    FleetDocument& document() const { return m_window.document; }
    const Fleet& fleet() const { return m_window.document.fleet(); }

private:
    const FleetContext& m_window;
};

}  // namespace fleetwright
