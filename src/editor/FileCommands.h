#pragma once

#include "Fault.h"
#include "Menu.h"
#include "Panel.h"
#include "Shortcut.h"
#include "Timer.h"
#include "controlArray.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

class FindingsPanel;
class HistoryPanel;
class RecoveryPanel;
class clsMRUFiles;

/// The file menu: what replaces the ship, what saves and prints it, and the list of recent files.
class FileCommands : public Panel {
public:
    /// What the commands need of the rest of the window.
    struct Others {
        const std::unique_ptr<clsMRUFiles>& CMRUList;
        RecoveryPanel& recovery;
        HistoryPanel& history;
        FindingsPanel& findings;
        Handler replaceShip;  ///< puts a new ship, without rows, into the place of the one at hand
        Handler clearAutoMass;  ///< takes the mark of AutoMass away
    };

    FileCommands(const PanelContext& context, MenuEntry& mnuFile, Others others);

    /// Only a ship that has a file can be saved there.
    void show();
    /// Shows the list of recent files in the menu.
    void fillMRU();
    /// Replaces the ship by the one in a file; only when idle. False if it does not load; the ship
    /// is a new one all the same, and `fileFault` says why.
    bool loadFile(const std::string& fileName);
    /// Loads a file that was dropped on the window or named otherwise, or a code, when idle, and
    /// says why if it does not load. Of several files it loads none.
    void openFiles(const std::vector<std::string>& files);
    /// The same as soon as the start is over. Nothing if there is no file.
    void openAfterStart(std::vector<std::string> files);
    /// Replaces the ship by one that was put aside, when idle: one without a file, and not saved.
    void openPutAside(const std::filesystem::path& file);
    std::optional<Fault> fileFault;  ///< why the last load has failed

private:
    MenuEntry& m_file;

public:
    MenuEntry mnuNew{m_file, {.name = "mnuNew", .caption = "&New", .shortcut = "Ctrl+N"}, [this] {
                         mnuNew_Click();
                     }};
    MenuEntry mnuLoad{m_file,
                      {.name = "mnuLoad",
                       .caption = "&Load",
                       .toolTip = "Opens a ship file or, of all files, a sheet that carries a ship",
                       .shortcut = "Ctrl+L"},
                      [this] { mnuLoad_Click(); }};
    MenuEntry mnuSaveAs{m_file,
                        {.name = "mnuSaveAs", .caption = "Save &As", .shortcut = "Ctrl+A"},
                        [this] { mnuSaveAs_Click(); }};
    MenuEntry mnuSave{m_file,
                      {.name = "mnuSave", .caption = "&Save", .shortcut = "Ctrl+S"},
                      [this] { mnuSave_Click(); }};
    /// Says why nothing is saved, while Save is disabled.
    Shortcut keySaveNowhere{form(),
                            {.name = "keySaveNowhere", .shortcut = "Ctrl+S", .isEnabled = false},
                            [this] { keySaveNowhere_Press(); }};
    MenuEntry mnuPrint{m_file,
                       {.name = "mnuPrint", .caption = "Print", .shortcut = "Ctrl+P"},
                       [this] { mnuPrint_Click(); }};
    MenuEntry mnuSep1{m_file, {.name = "mnuSep1", .caption = "-"}};
    MenuEntry mnuExit{m_file,
                      {.name = "mnuExit", .caption = "E&xit", .shortcut = "Ctrl+X"},
                      [this] { mnuExit_Click(); }};
    MenuEntry mnuMRUSep{m_file, {.name = "mnuMRUSep", .caption = "-", .isVisible = false}};
    /// Indexes count from 1; place 0 stands for index 1.
    std::array<MenuEntry, 5> mnuMRUFile = controlArray<MenuEntry, 5>([this](int place) {
        const std::string index = std::to_string(place + 1);
        return MenuEntry(m_file,
                         {.name = "mnuMRUFile" + index,
                          .caption = index,
                          .isVerbatim = true,
                          .isVisible = false},
                         [this, place] { mnuMRUFile_Click(place + 1); });
    });

    /// Waits for the end of the start.
    Timer tmrOpen{form(), "tmrOpen", 100, false, [this] { tmrOpen_Timer(); }};

private:
    void mnuNew_Click();
    void mnuLoad_Click();
    void mnuSaveAs_Click();
    void mnuSave_Click();
    void keySaveNowhere_Press();
    void mnuPrint_Click();
    void mnuExit_Click();
    void mnuMRUFile_Click(int Index);
    void tmrOpen_Timer();

    void whenReplaceable(std::function<void()> replace);
    bool replaceBy(const std::string& fileName);
    void load(const std::string& fileName);
    std::string faultIn(const std::string& fileName) const;
    void sayFault(const std::string& fileName);
    void sayOfDesign(const std::string& text);
    void showNewShip();
    void saveAs(std::string fileName);
    void addRecentFile(const std::string& fileName);
    void printCopies(int copies);

    Others m_others;
    std::vector<std::string> m_filesOfStart;
    std::string m_saidOfDesign;  ///< what the status line was last told of the design at hand
};

}  // namespace fleetwright
