// Designs that are put aside, so that a crash costs two seconds of work at the most and no ship
// goes without trace.

#include "frmMain.h"

#include "Error.h"
#include "RecoveryFolder.h"

namespace fleetwright {

/// From here on nothing of the design can be lost: it is new, or in its file.
void frmMain::noteSafe() {
    if (m_services.recovery != nullptr) {
        m_services.recovery->forget();
        m_safeFile = g_Ship->shipFile();
    }
}

bool frmMain::isSafe() const {
    return m_services.recovery == nullptr || !g_Ship || g_Ship->shipFile() == m_safeFile;
}

void frmMain::putAside() {
    try {
        m_services.recovery->put(g_Ship->g_sShipName, g_Ship->shipFile());
    } catch (const std::exception& error) {
        sbStatus.setText(std::string("The design cannot be put aside: ") + error.what());
    }
}

void frmMain::tmrRecovery_Timer() {
    tmrRecovery.setEnabled(false);
    if (!isSafe()) {
        putAside();
    } else if (m_services.recovery != nullptr) {
        m_services.recovery->forget();
    }
}

/// The design at hand goes. What has changed since it was safe is kept for good.
void frmMain::giveUpDesign() {
    if (m_services.recovery == nullptr) {
        return;
    }
    if (isSafe()) {
        m_services.recovery->forget();
    } else {
        putAside();
        m_services.recovery->keep();
    }
}

void frmMain::showRecovered() {
    if (m_services.recovery == nullptr) {
        return;
    }
    if (const auto design = m_services.recovery->keepLeftBehind()) {
        sbStatus.setText("Recovered design: " + design->string());
    }
}

}  // namespace fleetwright
