#include "RecoveryPanel.h"

#include "Desktop.h"
#include "Error.h"
#include "FleetWindow.h"
#include "WrittenShip.h"
#include "fingerprint.h"
#include "frmPutAside.h"
#include "keepOrLose.h"
#include "paths.h"
#include "readFile.h"
#include "readShip.h"
#include "text.h"

#include <utility>

namespace fleetwright {

RecoveryPanel::RecoveryPanel(const PanelContext& context, MenuEntry& mnuDesign,
                             std::function<void(const std::filesystem::path&)> open,
                             std::function<std::string()> steps,
                             std::function<bool()> areStepsAhead)
    : Panel(context), m_design(mnuDesign), m_open(std::move(open)), m_steps(std::move(steps)),
      m_areStepsAhead(std::move(areStepsAhead)) {}

void RecoveryPanel::noteChange() {
    if (services().recovery != nullptr && !tmrRecovery.isEnabled()) {
        tmrRecovery.restart();
    }
}

void RecoveryPanel::noteSafe() {
    if (services().recovery != nullptr) {
        services().recovery->forget();
        m_safe = fingerprint(ship().shipFile());
        m_aside.reset();
    }
}

void RecoveryPanel::noteFile(const std::string& file, std::string_view text) {
    if (services().recovery != nullptr) {
        m_files[file] = fingerprint(text);
    }
}

RecoveryPanel::Others RecoveryPanel::keepOthersIn(const std::string& file) {
    const auto known = m_files.find(file);
    if (known == m_files.end()) {
        return Others::None;
    }
    std::string bytes;
    try {
        bytes = readBytes(nativePath(file));
    } catch (const FileError&) {
        return Others::None;  // nobody could keep it, and a save that fails says why
    }
    if (fingerprint(toUtf8(bytes)) == known->second) {
        return Others::None;
    }
    const WrittenShip other = WrittenShip::of(bytes);
    try {
        services().recovery->keepOther({other.name, other.mass.value_or(0), bytes});
        return Others::Kept;
    } catch (const FileError& error) {
        const Answer mayGo = services().desktop.showMessage(
            "Somebody else has changed the file, and what is there cannot be put aside: " +
                complaint(error) + "\nReplace it?",
            "", Buttons::YesNo, Icon::Critical);
        return mayGo == Answer::Yes ? Others::None : Others::Staying;
    }
}

bool RecoveryPanel::isSafe() const {
    return services().recovery == nullptr || !window().g_Ship ||
           (fingerprint(ship().shipFile()) == m_safe && !isLostToSheet());
}

/// Whether the design is in no file, since the sheet that it came from is another one now: nobody
/// is asked whether a design may go for the sheet of another.
bool RecoveryPanel::isLostToSheet() const {
    const auto known = m_files.find(ship().origin);
    if (!ship().g_sSaveName.empty() || known == m_files.end()) {
        return false;
    }
    try {
        const std::string text = readShip(ship().origin).text;
        return fingerprint(text) != known->second && text != ship().shipFile();
    } catch (const FileError&) {
        return true;
    }
}

void RecoveryPanel::tmrRecovery_Timer() {
    tmrRecovery.setEnabled(false);
    if (services().recovery == nullptr || !window().g_Ship) {
        return;
    }
    // What can be redone is in no file.
    if (isSafe() && !m_areStepsAhead()) {
        services().recovery->forget();
        m_aside.reset();
        return;
    }
    RecoveryFolder::Aside aside = design();
    if (aside == m_aside) {
        return;
    }
    try {
        services().recovery->put(aside);
        m_aside = std::move(aside);
    } catch (const FileError& error) {
        window().say("The design cannot be put aside: " + complaint(error));
    }
}

bool RecoveryPanel::giveUpDesignFor(const std::filesystem::path& file) {
    if (services().recovery != nullptr) {
        services().recovery->noteOpened(file);
    }
    return giveUpDesign();
}

bool RecoveryPanel::giveUpDesign() {
    m_aside.reset();
    if (isSafe()) {
        if (services().recovery != nullptr) {
            services().recovery->forget();
        }
        return true;
    }
    return keepOrLose(*services().recovery, design(), services().desktop);
}

RecoveryFolder::Aside RecoveryPanel::design() const {
    return {ship().g_sShipName, ship().mass(), ship().shipFile(), m_steps()};
}

void RecoveryPanel::tmrAsk_Timer() {
    if (!services().isStartOver() || !window().acts.isIdle()) {
        return;
    }
    tmrAsk.setEnabled(false);
    if (services().recovery == nullptr) {
        return;
    }
    try {
        std::vector<RecoveryFolder::Design> all = services().recovery->lookAround();
        if (isAnyLeftBehind(all)) {
            show(std::move(all));
        }
    } catch (const FileError& error) {
        window().say(complaint(error));
    }
}

void RecoveryPanel::mnuPutAside_Click() {
    if (services().recovery == nullptr) {
        return;
    }
    try {
        show(services().recovery->lookAround());
    } catch (const FileError& error) {
        showFileError(services().desktop, error);
    }
}

std::string RecoveryPanel::alsoLeft() const {
    return m_alsoLeft == 0 ? ""
                           : "The crash has left " + std::to_string(m_alsoLeft) +
                                 " more: see Designs Put Aside.";
}

void RecoveryPanel::show(std::vector<RecoveryFolder::Design> designs) {
    frmPutAside& dialog = services().putAside();
    if (dialog.isLoaded()) {
        return;  // it is open
    }
    const bool isQuestion = isAnyLeftBehind(designs);
    dialog.designs = std::move(designs);
    services().desktop.showModal(dialog, form());
    std::vector<RecoveryFolder::Design> shown = std::exchange(dialog.designs, {});
    m_alsoLeft = 0;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        m_alsoLeft += dialog.chosen && i != *dialog.chosen && shown[i].isLeftBehind ? 1 : 0;
    }
    try {
        services().recovery->noteSeen(shown);
    } catch (const FileError& error) {
        window().say(complaint(error));  // they will be offered again
    }
    // What is at work may have been among them, and be in the trash now.
    m_aside.reset();
    noteChange();
    if (dialog.chosen && shown[*dialog.chosen].about.kind == RecoveryKind::Fleet) {
        if (FleetWindow* const fleet = services().fleet()) {
            fleet->openPutAside(shown[*dialog.chosen].file);
            if (m_alsoLeft > 0) {
                window().say(alsoLeft());
            }
        }
    } else if (dialog.chosen) {
        m_open(shown[*dialog.chosen].file);
    } else if (isQuestion && !shown.empty()) {
        window().say("The designs stay put aside: see the menu Design");
    }
}

}  // namespace fleetwright
