#include "FleetRecoveryPanel.h"

#include "Desktop.h"
#include "Error.h"
#include "keepOrLose.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

namespace fleetwright {

void FleetRecoveryPanel::noteChange() {
    if (!tmrFleetRecovery.isEnabled()) {
        tmrFleetRecovery.restart();
    }
}

void FleetRecoveryPanel::noteSafe() {
    m_aside.reset();
    services().recovery.forget(RecoveryKind::Fleet);
}

void FleetRecoveryPanel::noteOpened(const std::filesystem::path& file) {
    services().recovery.noteOpened(file);
}

bool FleetRecoveryPanel::giveUpFleet(bool asks) {
    if (document().isSaved()) {
        noteSafe();
        return true;
    }
    if (asks && services().desktop.showMessage("Fleet not saved, let it go? It stays put aside.",
                                               "Fleet not saved!", Buttons::YesNo,
                                               Icon::Information) == Answer::No) {
        return false;
    }
    m_aside.reset();
    return keepOrLose(services().recovery, aside(), services().desktop);
}

void FleetRecoveryPanel::tmrFleetRecovery_Timer() {
    tmrFleetRecovery.setEnabled(false);
    // What can be redone is in no file, but the fleet is.
    if (document().isSaved()) {
        noteSafe();
        return;
    }
    try {
        if (RecoveryFolder::Aside now = aside(); now != m_aside) {
            services().recovery.put(now);
            m_aside = std::move(now);
        }
        window().takeBack(m_complaint);
    } catch (const FileError& error) {
        m_complaint = "The fleet cannot be put aside: " + complaint(error);
        window().say(m_complaint);
    }
}

RecoveryFolder::Aside FleetRecoveryPanel::aside() const {
    return {.shipName = fleet().name.empty() ? "Fleet" : fleet().name,
            .mass =
                static_cast<std::int32_t>(std::min<std::int64_t>(shipCount(fleet()), INT32_MAX)),
            .shipFile = document().textIn(services().recovery.folder()),
            .steps = document().steps(),
            .kind = RecoveryKind::Fleet};
}

}  // namespace fleetwright
