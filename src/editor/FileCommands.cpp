#include "FileCommands.h"

#include "Desktop.h"
#include "Error.h"
#include "Printer.h"
#include "RecoveryPanel.h"
#include "ReportPrinter.h"
#include "clsMRUFiles.h"
#include "paths.h"
#include "readFile.h"

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

FileCommands::FileCommands(const PanelContext& context, MenuEntry& mnuFile, Others others)
    : Panel(context), m_file(mnuFile), m_others(std::move(others)) {}

void FileCommands::show() {
    mnuSave.setEnabled(!ship().g_sSaveName.empty());
}

bool FileCommands::loadFile(const std::string& fileName) {
    bool isLoaded = false;
    // What waits, the end of the window perhaps, waits for the last step.
    window().acts.letActsIn([&] {
        isLoaded = replaceBy(fileName);
        if (isLoaded) {
            m_others.recovery.noteSafe();
            addRecentFile();
        }
    });
    return isLoaded;
}

void FileCommands::openPutAside(const std::filesystem::path& file) {
    whenReplaceable([this, name = pathText(file)] {
        readBytes(
            nativePath(name));  // another run may have thrown it away: then nothing is replaced
        window().acts.letActsIn([&] {
            fileFault.reset();
            if (replaceBy(name)) {
                act([this] {
                    ship().g_sSaveName.clear();
                    ship().g_sTrimmedFileName.clear();
                    ship().g_bSaved = false;
                    window().RefreshScreen();
                });
                window().say("This design is not saved yet. Save As gives it a file.");
            } else if (fileFault) {
                window().say("The design cannot be opened: " + fileFault->text);
            }
        });
    });
}

/// Replaces the ship by the one in a file, or by a new one if that does not load. False also if the
/// one at hand may not go.
bool FileCommands::replaceBy(const std::string& fileName) {
    if (!m_others.recovery.giveUpDesignFor(nativePath(fileName))) {
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
    });
}

void FileCommands::mnuLoad_Click() {
    const auto file = services().desktop.chooseFileToOpen(shipDialog(services().appFolder));
    if (file) {
        whenReplaceable([this, name = *file] { loadFile(name); });
    }
}

void FileCommands::mnuMRUFile_Click(int Index) {
    const std::string name = mnuMRUFile[static_cast<std::size_t>(Index - 1)].caption();
    whenReplaceable([this, name] {
        loadFile((services().appFolder / "ships" / nativePath(name + shipExtension)).string());
    });
}

void FileCommands::mnuSaveAs_Click() {
    if (const auto file = services().desktop.chooseFileToSave(shipDialog(services().appFolder))) {
        window().acts.whenIdle([this, name = *file] { saveAs(name); });
    }
}

void FileCommands::mnuSave_Click() {
    window().acts.whenIdle([this] {
        if (!ship().g_sSaveName.empty()) {
            saveAs(ship().g_sSaveName);
        }
    });
}

void FileCommands::saveAs(std::string fileName) {
    if (!maySave(services().desktop, nativePath(ShipClass::withExtension(fileName)))) {
        return;
    }
    window().say("Saving...");
    bool isSaved = false;
    act([&] { isSaved = ship().saveShip(fileName); });
    if (isSaved) {
        m_others.recovery.noteSafe();
        addRecentFile();
    }
}

void FileCommands::addRecentFile() {
    m_others.CMRUList->addFile(ship().g_sTrimmedFileName);
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
        entry.setCaption(file.empty() ? std::to_string(index) : file);
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
