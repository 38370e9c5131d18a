#include "FleetFilePanel.h"

#include "Desktop.h"
#include "Error.h"
#include "FleetRecoveryPanel.h"
#include "fleetFile.h"
#include "fleetName.h"
#include "paths.h"
#include "text.h"

#include <utility>
#include <vector>

namespace fleetwright {

namespace {

FileDialog fleetDialog(const std::filesystem::path& folder) {
    return {.filter = "All Files (*.*)|*.*|Fleets (*.fleet)|*.fleet",
            .filterIndex = 2,
            .initialFolder = folder,
            .extension = fleetExtension};
}

/// Where fleets are looked for at first: beside their ships where there is no folder for them.
std::filesystem::path fleetsFolder(const std::filesystem::path& appFolder) {
    std::error_code error;
    return appFolder /
           (std::filesystem::is_directory(appFolder / "fleets", error) ? "fleets" : "ships");
}

std::string faultsIn(const std::filesystem::path& file, const std::vector<Fault>& faults) {
    return faults.empty()
               ? std::string()
               : complaint(pathText(file.filename()), faults.front()) +
                     (faults.size() == 1 ? ""
                                         : ", and " + std::to_string(faults.size() - 1) + " more");
}

}  // namespace

FleetFilePanel::FleetFilePanel(const FleetContext& context, MenuEntry& mnuFleetFile,
                               MenuEntry& mnuFleetEdit, FleetRecoveryPanel& recovery)
    : FleetPart(context), m_file(mnuFleetFile), m_edit(mnuFleetEdit), m_recovery(recovery) {}

void FleetFilePanel::show() {
    mnuUndoFleet.setObject("Undo", document().history().undoName());
    mnuRedoFleet.setObject("Redo", document().history().redoName());
    const std::string name = fleet().name.empty() ? "New Fleet" : shownText(fleet().name);
    form().setCaption((document().isSaved() ? "" : "*") + name + " - Fleet");
}

void FleetFilePanel::open(const std::filesystem::path& file) {
    replaceBy(file, [&](const Fleet&) { return faultsIn(file, document().open(file)); });
}

void FleetFilePanel::openPutAside(const std::filesystem::path& file) {
    const std::string steps = RecoveryFolder::stepsOf(file);
    replaceBy(file, [&](Fleet fleet) {
        const bool hasSteps = document().beginAside(std::move(fleet), file.parent_path(), steps);
        return std::string("This fleet is not saved yet. Save As gives it a file.") +
               (hasSteps ? "" : " Its steps cannot be undone any more.");
    });
}

/// Replaces the fleet by what a file holds, if the user lets it go; `replace` says what there is to
/// say then. A file that is none leaves the fleet at hand without a question.
void FleetFilePanel::replaceBy(const std::filesystem::path& file,
                               const std::function<std::string(Fleet)>& replace) {
    try {
        ReadFleet read = readFleet(file);
        if (m_recovery.giveUpFleet(true)) {
            const std::string said = replace(std::move(read.fleet));
            m_recovery.noteOpened(file);
            window().restart();
            window().say(said);
        }
    } catch (const FileError& error) {
        showFileError(services().desktop, error);
    }
}

void FleetFilePanel::mnuNewFleet_Click() {
    if (m_recovery.giveUpFleet(true)) {
        document().begin({}, services().appFolder / "ships");
        window().restart();
        window().say("");
    }
}

void FleetFilePanel::mnuOpenFleet_Click() {
    const auto file =
        services().desktop.chooseFileToOpen(fleetDialog(fleetsFolder(services().appFolder)));
    if (file) {
        open(nativePath(*file));
    }
}

void FleetFilePanel::mnuSaveFleet_Click() {
    if (document().file().empty()) {
        mnuSaveFleetAs_Click();
        return;
    }
    const std::string name = shownText(pathText(document().file().filename()));
    if (!document().isFileOther() ||
        services().desktop.showMessage(name + " is not as this window has read or saved it: "
                                              "somebody else has changed it.\nReplace it?",
                                       "Changed on Disk", Buttons::YesNo,
                                       Icon::Information) == Answer::Yes) {
        save(document().file());
    }
}

void FleetFilePanel::mnuSaveFleetAs_Click() {
    const std::filesystem::path& file = document().file();
    FileDialog dialog =
        fleetDialog(file.empty() ? fleetsFolder(services().appFolder) : file.parent_path());
    dialog.fileName =
        file.empty() ? fileNameOf(fleet().name.empty() ? "Fleet" : fleet().name) + fleetExtension
                     : pathText(file.filename());
    if (const auto chosen = services().desktop.chooseFileToSave(dialog)) {
        save(nativePath(isFleetName(*chosen) ? *chosen : *chosen + fleetExtension));
    }
}

void FleetFilePanel::save(const std::filesystem::path& file) {
    if (!maySave(services().desktop, file)) {
        return;
    }
    try {
        document().save(file, window().rows, services().catalogue());
        m_recovery.noteSafe();
        window().refresh();
        window().say("Saved " + shownText(pathText(file)));
    } catch (const FileError& error) {
        showFileError(services().desktop, error);
    }
}

void FleetFilePanel::mnuUndoFleet_Click() {
    if (document().history().canUndo()) {
        window().say("Undo: " + document().history().undoName());
        document().undo();
        window().refresh();
    }
}

void FleetFilePanel::mnuRedoFleet_Click() {
    if (document().history().canRedo()) {
        window().say("Redo: " + document().history().redoName());
        document().redo();
        window().refresh();
    }
}

}  // namespace fleetwright
