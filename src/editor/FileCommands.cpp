#include "FileCommands.h"

#include "Desktop.h"
#include "Error.h"
#include "FindingsPanel.h"
#include "FleetWindow.h"
#include "Globals.h"
#include "HistoryPanel.h"
#include "Printer.h"
#include "RecoveryPanel.h"
#include "ReportPrinter.h"
#include "clsMRUFiles.h"
#include "designCode.h"
#include "fleetName.h"
#include "paths.h"
#include "readFile.h"
#include "readShip.h"
#include "text.h"

namespace fleetwright {

namespace {

const std::string isNotSaved = "This design is not saved yet. Save As gives it a file.";
constexpr const char* hasNoFile = "This design has no file yet: Save As (Ctrl+A) gives it one";

FileDialog shipDialog(const std::filesystem::path& appFolder) {
    return {.filter = "All Files (*.*)|*.*|Ship Files(*.shp)|*.shp",
            .filterIndex = 2,
            .initialFolder = appFolder / "ships",
            .extension = shipExtension};
}

/// Whether an entry in the list of recent files is the path of a sheet.
bool isPath(const std::string& entry) {
    return nativePath(entry).is_absolute();
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

FileCommands::FileCommands(const PanelContext& context, MenuEntry& mnuFile, Others others)
    : Panel(context), m_file(mnuFile), m_others(std::move(others)) {}

void FileCommands::show() {
    const bool hasFile = !ship().g_sSaveName.empty();
    keySaveNowhere.setEnabled(!hasFile);
    mnuSave.setEnabled(hasFile);
    mnuSave.setToolTip(hasFile ? "Saves the design into its file" : hasNoFile);
    if (hasFile) {
        window().takeBack(hasNoFile);
    }
}

bool FileCommands::loadFile(const std::string& fileName) {
    bool isLoaded = false;
    // What waits, the end of the window perhaps, waits for the last step.
    window().acts.letActsIn([&] {
        isLoaded = replaceBy(fileName);
        if (isLoaded && !isDesignCode(fileName)) {
            m_others.recovery.noteSafe();
            addRecentFile(fileName);
        }
    });
    return isLoaded;
}

/// Loads a file as a command does, and says what is wrong with it. A sheet from which no ship can
/// be had leaves the one at hand, and so does a code that does not load.
void FileCommands::load(const std::string& fileName) {
    ShipText file;
    try {
        file = readShip(fileName);
    } catch (const SheetError& error) {
        fileFault = Fault{0, error.what()};
        sayFault(fileName);
        return;
    } catch (const FileError&) {
        // The load fails likewise.
    }
    if (file.source == ShipSource::Code) {
        ShipClass trial({services().catalogueFile, services().globals.formula, {}});
        if (!trial.loadShip(fileName)) {
            fileFault = trial.fileFault();
            sayFault(fileName);
            return;
        }
    }
    if (loadFile(fileName)) {
        window().takeBack(m_saidOfDesign);
        if (file.source != ShipSource::Code) {
            m_others.recovery.noteFile(ship().origin, file.text);
        }
        if (file.source == ShipSource::Sheet) {
            sayOfDesign("This design is from a sheet. Save As gives it a file of its own.");
        } else if (file.source == ShipSource::Code) {
            sayOfDesign(isNotSaved);
        }
        m_others.findings.noteLoad(fileName, file.text);
    } else {
        sayFault(fileName);
    }
}

/// Says what holds for the design at hand, and for no new one.
void FileCommands::sayOfDesign(const std::string& text) {
    m_saidOfDesign = text;
    window().say(text);
}

std::string FileCommands::faultIn(const std::string& fileName) const {
    return complaint(shipSourceName(fileName), *fileFault);
}

void FileCommands::sayFault(const std::string& fileName) {
    if (fileFault) {
        window().say(faultIn(fileName));
    }
}

void FileCommands::openFiles(const std::vector<std::string>& files) {
    if (files.size() != 1) {
        window().say("One design at a time can be opened");
        return;
    }
    FleetWindow* const fleet = services().fleet();
    if (fleet != nullptr && isFleetName(files.front())) {
        fleet->openFleet(files.front());
        return;
    }
    whenReplaceable([this, name = files.front()] { load(name); });
}

void FileCommands::openAfterStart(std::vector<std::string> files) {
    m_filesOfStart = std::move(files);
    tmrOpen.setEnabled(!m_filesOfStart.empty());
}

void FileCommands::tmrOpen_Timer() {
    if (services().isStartOver()) {
        tmrOpen.setEnabled(false);
        openFiles(m_filesOfStart);
    }
}

void FileCommands::openPutAside(const std::filesystem::path& file) {
    whenReplaceable([this, name = pathText(file)] {
        // Another run may have thrown it away: then nothing is replaced.
        const std::string shipFile = readBytes(nativePath(name));
        const std::string steps = RecoveryFolder::stepsOf(nativePath(name));
        window().acts.letActsIn([&] {
            if (replaceBy(name)) {
                act([this] {
                    ship().g_sSaveName.clear();
                    ship().g_sTrimmedFileName.clear();
                    ship().origin.clear();
                    ship().g_bSaved = false;
                    window().RefreshScreen();
                });
                const bool hasSteps = steps.empty() || m_others.history.adopt(steps, shipFile);
                const std::string others = m_others.recovery.alsoLeft();
                sayOfDesign(isNotSaved + (others.empty() ? "" : ' ' + others) +
                            (hasSteps ? "" : " Its steps cannot be undone any more."));
                m_others.findings.noteLoad(name, shipFile);
            } else if (fileFault) {
                window().say("The design cannot be opened: " + faultIn(name));
            }
        });
    });
}

/// Replaces the ship by the one in a file or a code, or by a new one if that does not load. False
/// also if the one at hand may not go.
bool FileCommands::replaceBy(const std::string& fileName) {
    fileFault.reset();
    const bool mayGo = isDesignCode(fileName)
                           ? m_others.recovery.giveUpDesign()
                           : m_others.recovery.giveUpDesignFor(nativePath(fileName));
    if (!mayGo) {
        return false;
    }
    bool isLoaded = false;
    m_others.replaceShip();
    act([&] {
        // What the buttons show decides which of them write to the ship, and so what it
        // becomes: they start like those of a fresh window, whatever ship was shown before.
        window().RefreshScreen();
        ship().g_bSaved = true;
        isLoaded = ship().loadShip(fileName);
    });
    fileFault = ship().fileFault();
    if (!isLoaded) {
        // Nobody takes half a ship, or the former one, for the one in the file.
        m_others.replaceShip();
        showNewShip();
    }
    return isLoaded;
}

void FileCommands::showNewShip() {
    act([this] { window().RefreshScreen(); });
    ship().g_bSaved = true;  // nobody has done anything to it, whatever the buttons have clicked
    m_others.recovery.noteSafe();
}

/// Runs what replaces the ship. Where the catalogue cannot be used any more, the one at hand stays.
void FileCommands::whenReplaceable(std::function<void()> replace) {
    window().acts.whenIdle([this, task = std::move(replace)] {
        if (const std::string faults = services().catalogueFaults(); !faults.empty()) {
            services().desktop.showMessage(faults, "", Buttons::Ok, Icon::Critical);
            return;
        }
        try {
            task();
        } catch (const FileError& error) {
            showFileError(services().desktop, error);
        }
    });
}

void FileCommands::mnuNew_Click() {
    whenReplaceable([this] {
        if (!ship().g_bSaved &&
            services().desktop.showMessage("Ship not saved, delete?", "Ship not saved!",
                                           Buttons::YesNo, Icon::Information) == Answer::No) {
            return;
        }
        if (!m_others.recovery.giveUpDesign()) {
            return;
        }
        m_others.replaceShip();
        m_others.clearAutoMass();
        showNewShip();
        window().takeBack(m_saidOfDesign);
    });
}

void FileCommands::mnuLoad_Click() {
    const auto file = services().desktop.chooseFileToOpen(shipDialog(services().appFolder));
    if (file) {
        openFiles({*file});
    }
}

void FileCommands::mnuMRUFile_Click(int Index) {
    const std::string entry = m_others.CMRUList->getFile(static_cast<std::int16_t>(Index));
    if (isPath(entry)) {
        openFiles({entry});
        return;
    }
    whenReplaceable([this, entry] {
        load((services().appFolder / "ships" / nativePath(entry + shipExtension)).string());
    });
}

void FileCommands::mnuSaveAs_Click() {
    FileDialog dialog = shipDialog(services().appFolder);
    if (const auto& design = window().g_Ship) {
        dialog.fileName = fileNameOf(design->g_sShipName) + shipExtension;
        if (!design->g_sSaveName.empty()) {
            dialog.initialFolder = nativePath(design->g_sSaveName).parent_path();
        }
    }
    if (const auto file = services().desktop.chooseFileToSave(dialog)) {
        window().acts.whenIdle([this, name = *file] { saveAs(name); });
    }
}

void FileCommands::mnuSave_Click() {
    window().acts.whenIdle([this] {
        const std::string file = ship().g_sSaveName;
        if (file.empty()) {
            return;
        }
        const RecoveryPanel::Others others = m_others.recovery.keepOthersIn(file);
        if (others == RecoveryPanel::Others::Staying) {
            return;
        }
        saveAs(file);
        if (others == RecoveryPanel::Others::Kept && ship().g_bSaved) {
            window().say("What somebody else has written into " +
                         shownText(pathText(nativePath(file).filename())) +
                         " meanwhile is among Designs Put Aside");
        }
    });
}

void FileCommands::keySaveNowhere_Press() {
    window().say(hasNoFile);
}

void FileCommands::saveAs(std::string fileName) {
    if (!maySave(services().desktop, nativePath(ShipClass::withExtension(fileName)))) {
        return;
    }
    window().say("Saving...");
    bool isSaved = false;
    act([&] { isSaved = ship().saveShip(fileName); });
    if (const auto& fault = ship().fileFault()) {
        window().say("Saving... " + complaint(fileName, *fault));
    } else if (isSaved) {
        m_others.recovery.noteSafe();
        m_others.recovery.noteFile(ship().g_sSaveName, toUtf8(ship().shipFile()));
        m_others.history.noteSaved();
        addRecentFile(fileName);
    }
}

/// Ship files are listed by their names, as the rules have it, and sheets by their paths.
void FileCommands::addRecentFile(const std::string& fileName) {
    m_others.CMRUList->addFile(ship().g_sSaveName.empty() ? fileName : ship().g_sTrimmedFileName);
    fillMRU();
}

void FileCommands::fillMRU() {
    mnuMRUSep.setVisible(false);
    for (std::int16_t index = 1; index <= m_others.CMRUList->MaxFiles(); ++index) {
        MenuEntry& entry = mnuMRUFile[static_cast<std::size_t>(index - 1)];
        const std::string file = m_others.CMRUList->getFile(index);
        if (!file.empty()) {
            mnuMRUSep.setVisible(true);
        }
        const std::string name = isPath(file) ? pathText(nativePath(file).filename()) : file;
        entry.setCaption(file.empty() ? std::to_string(index) : name);
        entry.setVisible(!file.empty());
    }
}

void FileCommands::mnuPrint_Click() {
    window().acts.whenIdle([this] {
        try {
            services().printer.setTitle(ship().g_sShipName);
            if (const std::optional<int> copies = services().printer.choose()) {
                printCopies(*copies);
            }
        } catch (const Error&) {
            // The command ends without a word, as it does when it is cancelled.
        }
    });
}

void FileCommands::mnuExit_Click() {
    form().unload();
}

void FileCommands::printCopies(int copies) {
    Printer& printer = services().printer;
    const int fontSize = printer.fontSize();
    const std::string fontName = printer.fontName();
    Report report(printer);
    for (int copy = 0; copy < copies; ++copy) {
        printer.setFontName("Courier New");
        printer.setFontSize(10);
        ship().PrintShip(report);
    }
    printer.setFontSize(fontSize);
    printer.setFontName(fontName);
}

}  // namespace fleetwright
