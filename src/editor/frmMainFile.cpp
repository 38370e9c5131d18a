// The file commands of the main window: what replaces the ship, what saves and prints it, and the
// list of recent files.

#include "frmMain.h"

#include "ActScope.h"
#include "Desktop.h"
#include "Error.h"
#include "Globals.h"
#include "Printer.h"
#include "ReportPrinter.h"
#include "TextFile.h"
#include "frmExtras.h"
#include "showFileError.h"

#include <cassert>

namespace fleetwright {

namespace {

constexpr const char* shipExtension = ".shp";

FileDialog shipDialog(const std::filesystem::path& appFolder) {
    return {.filter = "All Files (*.*)|*.*|Ship Files(*.shp)|*.shp",
            .filterIndex = 2,
            .initialFolder = appFolder / "ships",
            .extension = shipExtension};
}

/// Hands a report on to a printer.
class Report : public ReportPrinter {
public:
    explicit Report(Printer& printer) : m_printer(printer) {}

    void printLine(std::string_view line) override { m_printer.printLine(line); }
    void printEmptyLine() override { m_printer.printLine(""); }
    void endDocument() override { m_printer.endDocument(); }

private:
    Printer& m_printer;
};

}  // namespace

void frmMain::replaceShip() {
    assert(!g_Ship || !g_Ship->isBusy());  // whoever comes in between waits with whenIdle
    auto ship = std::make_unique<ShipClass>(ShipServices{.catalogueFile = m_services.catalogueFile,
                                                         .formula = m_services.globals.formula,
                                                         .eventLoopTurn = [this] { giveTurn(); }});
    m_shipEvents.clear();
    g_Ship = std::move(ship);
    const auto listen = [this](Signal<>& event, void (frmMain::*handler)()) {
        m_shipEvents.push_back(event.connect([this, handler] { (this->*handler)(); }));
    };
    listen(g_Ship->Recalculated, &frmMain::g_Ship_Recalculated);
    listen(g_Ship->CloakAndMerchant, &frmMain::g_Ship_CloakAndMerchant);
    listen(g_Ship->ShipLoaded, &frmMain::g_Ship_ShipLoaded);
    listen(g_Ship->ShipSaved, &frmMain::g_Ship_ShipSaved);
    listen(g_Ship->WeaponNotFound, &frmMain::g_Ship_WeaponNotFound);
    listen(g_Ship->AutoMassUnsettled, &frmMain::g_Ship_AutoMassUnsettled);
    noteSafe();
}

void frmMain::replaceShipAndRows() {
    replaceShip();
    lvCurrentWeapons.clear();
}

bool frmMain::loadFile(const std::string& fileName) {
    if (!giveUpDesign()) {
        return false;
    }
    replaceShipAndRows();
    bool isLoaded = false;
    {
        // An overflow in the middle of a load ends the load; there is nothing to go back to.
        const ActScope scope(*this);
        // What the buttons show decides which of them write to the ship, and so what it becomes:
        // they start like those of a fresh window, whatever ship was on the screen before.
        RefreshScreen();
        g_Ship->g_bSaved = true;
        isLoaded = g_Ship->loadShip(fileName);
    }
    fileFault = g_Ship->fileFault();
    if (isLoaded) {
        addRecentFile();
    } else {
        // Nobody takes half a ship, or the former one, for the one in the file.
        replaceShipAndRows();
        runUndoable([this] { RefreshScreen(); });
        g_Ship->g_bSaved = true;  // nobody has done anything to it
    }
    noteSafe();
    return isLoaded;
}

/// Runs what replaces the ship. Where the catalogue cannot be used any more, the one at hand stays.
void frmMain::whenReplaceable(std::function<void()> replace) {
    whenIdle([this, task = std::move(replace)] {
        if (const std::string faults = m_services.catalogueFaults(); !faults.empty()) {
            m_services.desktop.showMessage(faults, "", Buttons::Ok, Icon::Critical);
            return;
        }
        try {
            task();
        } catch (const FileError& error) {
            showFileError(m_services.desktop, error);
        }
    });
}

void frmMain::mnuNew_Click() {
    whenReplaceable([this] {
        if (!g_Ship->g_bSaved &&
            m_services.desktop.showMessage("Ship not saved, delete?", "Ship not saved!",
                                           Buttons::YesNo, Icon::Information) == Answer::No) {
            return;
        }
        if (!giveUpDesign()) {
            return;
        }
        replaceShipAndRows();
        mnuAutoMass.setChecked(false);
        fraMassSpinner.setVisible(true);
        // What waits, the end of the window perhaps, waits for the last step.
        runUndoable([this] { RefreshScreen(); });
        g_Ship->g_bSaved = true;
        noteSafe();
    });
}

void frmMain::mnuLoad_Click() {
    const auto file = m_services.desktop.chooseFileToOpen(shipDialog(m_services.appFolder));
    if (file) {
        whenReplaceable([this, name = *file] { loadFile(name); });
    }
}

void frmMain::mnuMRUFile_Click(int Index) {
    const std::string name = mnuMRUFile[static_cast<std::size_t>(Index - 1)].caption();
    whenReplaceable([this, name] {
        loadFile((m_services.appFolder / "ships" / nativePath(name + shipExtension)).string());
    });
}

void frmMain::mnuSaveAs_Click() {
    if (const auto file = m_services.desktop.chooseFileToSave(shipDialog(m_services.appFolder))) {
        whenIdle([this, name = *file] { saveAs(name); });
    }
}

void frmMain::mnuSave_Click() {
    whenIdle([this] {
        if (!g_Ship->g_sSaveName.empty()) {
            saveAs(g_Ship->g_sSaveName);
        }
    });
}

void frmMain::saveAs(std::string fileName) {
    sbStatus.setText("Saving...");
    bool isSaved = false;
    // An act, so that the window does not close behind a box that the refresh shows.
    runUndoable([&] { isSaved = g_Ship->saveShip(fileName); });
    if (isSaved) {
        noteSafe();
        addRecentFile();
    }
}

void frmMain::addRecentFile() {
    CMRUList->addFile(g_Ship->g_sTrimmedFileName);
    fillMRU();
}

void frmMain::fillMRU() {
    mnuMRUSep.setVisible(false);
    for (std::int16_t index = 1; index <= CMRUList->MaxFiles(); ++index) {
        MenuEntry& entry = mnuMRUFile[static_cast<std::size_t>(index - 1)];
        const std::string file = CMRUList->getFile(index);
        if (!file.empty()) {
            mnuMRUSep.setVisible(true);
        }
        entry.setCaption(file.empty() ? std::to_string(index) : file);
        entry.setVisible(!file.empty());
    }
}

void frmMain::mnuPrint_Click() {
    whenIdle([this] {
        try {
            if (const std::optional<int> copies = m_services.printer.choose()) {
                printCopies(*copies);
            }
        } catch (const Error&) {
            // The command ends without a word, as it does when it is cancelled.
        }
    });
}

void frmMain::printCopies(int copies) {
    Printer& printer = m_services.printer;
    const int fontSize = printer.fontSize();
    const std::string fontName = printer.fontName();
    Report report(printer);
    for (int copy = 0; copy < copies; ++copy) {
        printer.setFontName("Courier New");
        printer.setFontSize(10);
        g_Ship->PrintShip(report);
    }
    printer.setFontSize(fontSize);
    printer.setFontName(fontName);
}

void frmMain::mnuExtrasPage_Click() {
    frmExtras& page = m_services.extras();
    page.load();
    page.txtDesigner.setText(g_Ship->g_sDesignerName);
    page.txtShipName.setText(g_Ship->g_sShipName);
    m_services.desktop.showModal(page, *this);
    act([this] { RefreshScreen(); });
}

void frmMain::mnuHelp_Click() {
    m_services.desktop.showMessage("Sorry, help is not yet available", "Help");
}

}  // namespace fleetwright
