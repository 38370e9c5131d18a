#include "RecoveryPanel.h"

#include "Desktop.h"
#include "Error.h"
#include "RecoveryFolder.h"

namespace fleetwright {

void RecoveryPanel::noteChange() {
    if (services().recovery != nullptr && !tmrRecovery.isEnabled()) {
        tmrRecovery.restart();
    }
}

void RecoveryPanel::noteSafe() {
    if (services().recovery != nullptr) {
        services().recovery->forget();
        m_safeFile = ship().shipFile();
        m_asideFile.clear();
    }
}

bool RecoveryPanel::isSafe() const {
    return services().recovery == nullptr || !window().g_Ship || ship().shipFile() == m_safeFile;
}

void RecoveryPanel::tmrRecovery_Timer() {
    tmrRecovery.setEnabled(false);
    if (isSafe()) {
        if (services().recovery != nullptr) {
            services().recovery->forget();
            m_asideFile.clear();
        }
        return;
    }
    std::string design = ship().shipFile();
    if (design == m_asideFile) {
        return;
    }
    try {
        services().recovery->put(ship().g_sShipName, design);
        m_asideFile = std::move(design);
    } catch (const FileError& error) {
        window().say(std::string("The design cannot be put aside: ") + error.what());
    }
}

bool RecoveryPanel::giveUpDesign() {
    if (isSafe()) {
        if (services().recovery != nullptr) {
            services().recovery->forget();
        }
        return true;
    }
    try {
        services().recovery->put(ship().g_sShipName, ship().shipFile());
        services().recovery->keep();
        return true;
    } catch (const FileError& error) {
        return services().desktop.showMessage(
                   std::string("The design is not saved and cannot be put aside: ") + error.what() +
                       "\nLose it?",
                   "", Buttons::YesNo, Icon::Critical) == Answer::Yes;
    }
}

void RecoveryPanel::showRecovered() {
    if (services().recovery == nullptr) {
        return;
    }
    std::vector<RecoveryFolder::Design> designs;
    try {
        designs = services().recovery->keepLeftBehind();
    } catch (const FileError& error) {
        window().say(complaint(error));
    }
    if (designs.size() == 1) {
        window().say("Recovered design: " + shownText(designs.front().file.string()));
    } else if (!designs.empty()) {
        std::string names;
        for (const RecoveryFolder::Design& design : designs) {
            names += (names.empty() ? "" : ", ") + shownText(design.name);
        }
        window().say("Recovered designs: " + names + " in " +
                     shownText(designs.front().file.parent_path().string()));
    }
}

}  // namespace fleetwright
