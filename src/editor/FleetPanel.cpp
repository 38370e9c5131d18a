#include "FleetPanel.h"

#include "FleetWindow.h"

namespace fleetwright {

void FleetPanel::noteSaved() {
    if (FleetWindow* const fleet = services().fleet()) {
        fleet->lookAgain();
    }
}

bool FleetPanel::end() {
    FleetWindow* const fleet = services().fleet();
    return fleet == nullptr || fleet->end();
}

void FleetPanel::mnuFleet_Click() {
    if (FleetWindow* const fleet = services().fleet()) {
        fleet->bringUp();
    }
}

}  // namespace fleetwright
