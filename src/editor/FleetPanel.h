#pragma once

#include "Menu.h"
#include "Panel.h"

namespace fleetwright {

/// The way to the window of fleets.
class FleetPanel : public Panel {
public:
    FleetPanel(const PanelContext& context, MenuEntry& mnuDesign)
        : Panel(context), m_design(mnuDesign) {}

    /// A ship was saved, which may be one of the fleet.
    void noteSaved();
    /// The program is to end. False if the user does not let the fleet go.
    bool end();

private:
    MenuEntry& m_design;

public:
    MenuEntry mnuFleet{m_design,
                       {.name = "mnuFleet",
                        .caption = "Fleet...",
                        .toolTip = "Puts ships together to a fleet, and counts their points"},
                       [this] { mnuFleet_Click(); }};
    MenuEntry mnuSepFleet{m_design, {.name = "mnuSepFleet", .caption = "-"}};

private:
    void mnuFleet_Click();
};

}  // namespace fleetwright
