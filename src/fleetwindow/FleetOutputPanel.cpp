#include "FleetOutputPanel.h"

#include "Desktop.h"
#include "Error.h"
#include "SheetOutput.h"
#include "paths.h"
#include "saveFile.h"
#include "text.h"

#include <optional>
#include <string>

namespace fleetwright {

namespace {

std::string fleetName(const Fleet& fleet) {
    return fleet.name.empty() ? "Fleet" : fleet.name;
}

/// A fleet as something to leave the program: one that does not change any more.
OutgoingSheet outgoing(const FleetContext& window) {
    const FleetDocument& document = window.document;
    return {.name = fleetName(document.fleet()),
            .pages = window.services.pages(document.fleet(), window.rows, document.folder()),
            .bitmap = {},
            .whyNoBitmap = "A bitmap shows one sheet alone",
            .shipFile = {},
            .called = "fleet"};
}

}  // namespace

void FleetOutputPanel::show() {
    for (MenuEntry* const entry :
         {&mnuPreviewFleet, &mnuPrintFleet, &mnuExportFleet, &mnuPlayFleet}) {
        entry->setEnabled(!fleet().ships.empty());
    }
}

bool FleetOutputPanel::canDraw() {
    const bool canDraw = services().canReadShips();
    if (!canDraw) {
        window().say("The main window is still at work with its ship");
    }
    return canDraw;
}

void FleetOutputPanel::send(void (SheetOutput::*way)(const SheetOutput::Source&) const) {
    if (!canDraw()) {
        return;
    }
    bool isSaid = false;
    const SheetOutput sheets = services().sheets().saying([&](const std::string& done) {
        sayDone(done);
        isSaid = true;
    });
    (sheets.*way)([this] { return outgoing(window()); });
    if (way == &SheetOutput::preview && !isSaid && !services().leftOut().empty()) {
        sayDone("Shown");
    }
}

void FleetOutputPanel::sayDone(const std::string& done) {
    const std::string leftOut = services().leftOut();
    window().say(done + (leftOut.empty() ? "" : "; without " + leftOut));
}

void FleetOutputPanel::mnuPlayFleet_Click() {
    if (!canDraw()) {
        return;
    }
    constexpr const char* ending = ".html";
    const std::optional<std::string> chosen = services().desktop.chooseFileToSave(
        {.filter = "All Files (*.*)|*.*|Pages for a Browser (*.html)|*.html",
         .filterIndex = 2,
         .initialFolder = services().appFolder / "ssds",
         .fileName = fileNameOf(fleetName(fleet())) + ending,
         .extension = ending});
    if (!chosen) {
        return;
    }
    const bool hasEnding = toSmallLetters(*chosen).ends_with(ending);
    const std::filesystem::path file = nativePath(hasEnding ? *chosen : *chosen + ending);
    try {
        if (!maySave(services().desktop, file)) {
            return;
        }
        saveFile(file, services().playPage(fleet(), document().folder()));
        const bool isOpen = services().desktop.openDocument(file);
        sayDone("Saved " + shownText(pathText(file)) +
                (isOpen ? "" : ", which no browser could be found for"));
    } catch (const FileError& error) {
        showFileError(services().desktop, error);
    } catch (const Error& error) {
        services().desktop.showMessage(error.what(), "Fleet", Buttons::Ok, Icon::Critical);
    }
}

}  // namespace fleetwright
