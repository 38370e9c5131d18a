#pragma once

#include "FleetFilePanel.h"
#include "FleetHeadPanel.h"
#include "FleetLimitsPanel.h"
#include "FleetLook.h"
#include "FleetOutputPanel.h"
#include "FleetPart.h"
#include "FleetRecoveryPanel.h"
#include "FleetShipPanel.h"
#include "FleetShipsPanel.h"
#include "FleetSumPanel.h"
#include "FleetWindow.h"
#include "Form.h"
#include "Menu.h"
#include "StatusBar.h"
#include "Timer.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace fleetwright {

/// The window in which ships are put together to a fleet. It owns the fleet and is made of parts,
/// which turn the user's acts into changes of it; each change is a step that can be undone.
class frmFleet : public Form, public FleetWindow {
public:
    explicit frmFleet(FleetServices services);

    void bringUp() override;
    void openFleet(const std::string& file) override;
    void openPutAside(const std::filesystem::path& file) override;
    void lookAgain() override;
    bool end() override { return !isLoaded() || unload(); }

private:
    FleetServices m_services;
    FleetDocument m_document;
    FleetLook m_look;
    FleetRows m_rows;
    FleetSum m_sum;
    FleetContext m_context;

public:
    // The menu bar from left to right. The parts fill it.
    MenuEntry mnuFleetFile{*this, {.name = "mnuFleetFile", .caption = "Fleet"}};
    MenuEntry mnuFleetEdit{*this, {.name = "mnuFleetEdit", .caption = "Edit"}};
    MenuEntry mnuShips{*this, {.name = "mnuShips", .caption = "Ships"}};

    // The order of the parts is that of the Tab key.
    FleetRecoveryPanel recovery{m_context};
    FleetFilePanel files{m_context, mnuFleetFile, mnuFleetEdit, recovery};
    FleetOutputPanel output{m_context, mnuFleetFile};
    FleetHeadPanel head{m_context};
    FleetShipsPanel ships{m_context, mnuShips};
    FleetSumPanel sums{m_context};
    FleetShipPanel ship{m_context, [this] { return ships.selected(); }};
    FleetLimitsPanel limits{m_context};
    StatusBar sbFleet{*this, {.name = "sbFleet", .accessibleDescription = "Status"}};
    /// Reads the ships that are not known yet, a few at a time.
    Timer tmrLook{*this, "tmrLook", 20, false, [this] { refresh(); }};
    /// Wipes the status line and tries again to put the fleet aside, as the main window does.
    Timer tmrFleetStatus{*this, "tmrFleetStatus", 15000, true, [this] { tmrFleetStatus_Timer(); }};

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_Activate() override { lookAgain(); }
    void Form_Resize() override;

private:
    void act(const FleetAct& act, const std::function<void(Fleet&)>& change);
    void restart();
    void refresh();
    void placeParts();
    void tellSums();
    void tmrFleetStatus_Timer();

    std::string m_catalogue;                ///< by which the ships were read
    bool m_isShowing = false;               ///< controls that change write nothing back
    std::optional<std::string> m_toldSums;  ///< since the window was opened
    std::string m_lastStatus;               ///< the status line at the last turn
};

}  // namespace fleetwright
