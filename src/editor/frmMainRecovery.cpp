// Designs that are put aside, so that a crash costs two seconds of work at the most and no ship
// goes without trace.

#include "frmMain.h"

#include "Desktop.h"
#include "Error.h"
#include "RecoveryFolder.h"

namespace fleetwright {

/// From here on nothing of the design can be lost: it is new, or in its file.
void frmMain::noteSafe() {
    if (m_services.recovery != nullptr) {
        m_services.recovery->forget();
        m_safeFile = g_Ship->shipFile();
        m_asideFile.clear();
    }
}

bool frmMain::isSafe() const {
    return m_services.recovery == nullptr || !g_Ship || g_Ship->shipFile() == m_safeFile;
}

void frmMain::tmrRecovery_Timer() {
    tmrRecovery.setEnabled(false);
    if (isSafe()) {
        if (m_services.recovery != nullptr) {
            m_services.recovery->forget();
            m_asideFile.clear();
        }
        return;
    }
    std::string design = g_Ship->shipFile();
    if (design == m_asideFile) {
        return;
    }
    try {
        m_services.recovery->put(g_Ship->g_sShipName, design);
        m_asideFile = std::move(design);
    } catch (const FileError& error) {
        sbStatus.setText(std::string("The design cannot be put aside: ") + error.what());
    }
}

/// The design at hand is about to go. What has changed since it was safe is kept for good; if that
/// is not possible, the user says whether it may go all the same.
bool frmMain::giveUpDesign() {
    if (isSafe()) {
        if (m_services.recovery != nullptr) {
            m_services.recovery->forget();
        }
        return true;
    }
    try {
        m_services.recovery->put(g_Ship->g_sShipName, g_Ship->shipFile());
        m_services.recovery->keep();
        return true;
    } catch (const FileError& error) {
        return m_services.desktop.showMessage(
                   std::string("The design is not saved and cannot be put aside: ") + error.what() +
                       "\nLose it?",
                   "", Buttons::YesNo, Icon::Critical) == Answer::Yes;
    }
}

void frmMain::showRecovered() {
    if (m_services.recovery == nullptr) {
        return;
    }
    std::vector<RecoveryFolder::Design> designs;
    try {
        designs = m_services.recovery->keepLeftBehind();
    } catch (const FileError& error) {
        sbStatus.setText(error.file().string() + ": " + error.what());
    }
    if (designs.size() == 1) {
        sbStatus.setText("Recovered design: " + designs.front().file.string());
    } else if (!designs.empty()) {
        std::string names;
        for (const RecoveryFolder::Design& design : designs) {
            names += (names.empty() ? "" : ", ") + design.name;
        }
        sbStatus.setText("Recovered designs: " + names + " in " +
                         designs.front().file.parent_path().string());
    }
}

}  // namespace fleetwright
