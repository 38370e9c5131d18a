#pragma once

#include "Acts.h"
#include "ComparePanel.h"
#include "DesignNews.h"
#include "DragPanel.h"
#include "FiguresPanel.h"
#include "FileCommands.h"
#include "FindPanel.h"
#include "FindingsPanel.h"
#include "FleetPanel.h"
#include "GuidePanel.h"
#include "HistoryPanel.h"
#include "HullPanel.h"
#include "MainWindowServices.h"
#include "MassPanel.h"
#include "Menu.h"
#include "NamesPanel.h"
#include "PreviewPanel.h"
#include "RecoveryPanel.h"
#include "SharePanel.h"
#include "SheetPanel.h"
#include "ShipClass.h"
#include "StatusBar.h"
#include "SystemsPanel.h"
#include "Timer.h"
#include "TrayPanel.h"
#include "TreePanel.h"
#include "WindowCommands.h"
#include "ZoomPanel.h"
#include "clsMRUFiles.h"
#include "drawSSD.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace fleetwright {

/// The window in which a ship is designed. It owns the current ship and is made of panels, which
/// turn the user's acts into calls on the ship. `RefreshScreen` copies the ship to all controls; a
/// control that changes writes back, so that a refresh can enter itself until both agree.
class frmMain : public Form {
public:
    explicit frmMain(MainWindowServices services);

    bool g_bLoaded = false;                 ///< the load has finished
    std::unique_ptr<clsMRUFiles> CMRUList;  ///< the ship files used last
    std::unique_ptr<ShipClass> g_Ship;      ///< the current ship; a load replaces the object
    Signal<> Rested;                        ///< whatever was done to the design is done

    /// Whether no act and no work is under way, such as a load that lets acts in.
    bool isAtRest() const { return m_acts.isIdle(); }
    /// Shows the list of recent files in the menu.
    void fillMRU() { files.fillMRU(); }

private:
    MainWindowServices m_services;
    Acts m_acts;
    PanelContext m_context;

public:
    // The menu bar from left to right, and the menus that pop up. Panels fill them.
    MenuEntry mnuFile{*this, {.name = "mnuFile", .caption = "File"}};
    MenuEntry mnuStdHulls{*this, {.name = "mnuStdHulls", .caption = "Standard Hulls"}};
    MenuEntry mnuExtras{*this, {.name = "mnuExtras", .caption = "Extras"}};
    MenuEntry mnuDesign{*this, {.name = "mnuDesign", .caption = "Design"}};
    MenuEntry mnuHelpTop{*this, {.name = "mnuHelpTop", .caption = "Help"}};
    MenuEntry mnuAddWeaps{*this,
                          {.name = "mnuAddWeaps", .caption = "AddWeaps", .isVisible = false}};
    MenuEntry mnuTaskBarFunctions{
        *this, {.name = "mnuTaskBarFunctions", .caption = "Task Bar", .isVisible = false}};

    // The order of the panels is that of the Tab key, and of the entries in the menus.
    WindowCommands windows{m_context, mnuExtras, mnuHelpTop};
    MassPanel mass{m_context, mnuStdHulls, mnuExtras, [this](bool isMerchant) {
                       (isMerchant ? hull.optMerchant : hull.optWarship).setOn();
                   }};
    HullPanel hull{m_context};
    FiguresPanel figures{m_context, mass.lblMassLeft};
    NamesPanel names{m_context, figures.fraInfo, [this] {
                         recovery.tmrRecovery.restart();
                         findings.show();
                         compare.show();
                     }};
    SystemsPanel aboard{m_context, [this] { previews.clear(1); }};
    TreePanel tree{m_context, mnuAddWeaps, aboard, [this] { previews.clear(0); }};
    PreviewPanel previews{m_context, tree.tvWeapons, aboard.lvCurrentWeapons};
    StatusBar sbStatus{*this, {.name = "sbStatus", .accessibleDescription = "Status"}};
    DragPanel drag{m_context, tree, aboard.lvCurrentWeapons};
    TrayPanel tray{m_context, mnuTaskBarFunctions};
    Timer tmrRefreshScreen{*this, "tmrRefreshScreen", 15000, true,
                           [this] { tmrRefreshScreen_Timer(); }};
    HistoryPanel history{m_context,
                         mnuDesign,
                         {.moment = [this] { return moment(); },
                          .goBackTo = [this](const DesignMoment& moment) { goBackTo(moment); },
                          .safe = [this] { return recovery.safe(); },
                          .isSafe = [this](const std::string& safe) { recovery.setSafe(safe); },
                          .giveUp = [this] { return recovery.giveUpDesign(); }}};
    FindPanel find{m_context, mnuDesign, tree.tvWeapons, sbStatus};
    FindingsPanel findings{
        m_context, mnuDesign, sbStatus, history, {hull, mass, names, aboard, tree}};
    SheetPanel sheets{m_context, mnuDesign, aboard.lvCurrentWeapons,
                      [this] { return sheetShipOf(*g_Ship); }};
    SharePanel share{m_context, mnuDesign,
                     [this](const std::string& code) { files.openFiles({code}); }};
    ComparePanel compare{m_context, mnuDesign};
    FleetPanel fleet{m_context, mnuDesign};
    RecoveryPanel recovery{m_context, mnuDesign,
                           [this](const std::filesystem::path& file) { files.openPutAside(file); },
                           [this] { return history.steps(); },
                           [this] { return history.isAhead(); }};
    ZoomPanel zooms{m_context, mnuDesign};
    GuidePanel guide{m_context, mnuDesign};
    FileCommands files{m_context,
                       mnuFile,
                       {.CMRUList = CMRUList,
                        .recovery = recovery,
                        .history = history,
                        .findings = findings,
                        .replaceShip =
                            [this] {
                                replaceShip();
                                aboard.lvCurrentWeapons.clear();
                            },
                        .clearAutoMass = [this] { mass.markAutoMass(false); }}};

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_Resize() override;
    void Form_Activate() override { compare.lookAgain(); }

private:
    void RefreshScreen();
    DesignMoment moment() const;
    void goBackTo(const DesignMoment& moment);
    void sayNotKept();
    void tellNews();
    void tmrRefreshScreen_Timer();

    // The ship and its events.
    void replaceShip();
    void putShip(const CatalogueFile& catalogueFile);
    void g_Ship_Recalculated() { RefreshScreen(); }
    void g_Ship_CloakAndMerchant();
    void g_Ship_ShipLoaded();
    void g_Ship_ShipSaved();
    void g_Ship_WeaponNotFound();
    void g_Ship_AutoMassUnsettled();

    DesignNews m_news;
    std::vector<Connection> m_shipEvents;
    bool m_saysNotFound = false;  ///< a system is missing, and the box that says so is open
    std::string sLastStatus;      ///< the status line at the last tick
};

}  // namespace fleetwright
