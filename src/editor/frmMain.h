#pragma once

// The window in which a ship is designed. It owns the current ship, turns the user's acts into
// calls on it, and shows it: no control is the master copy of a value, `RefreshScreen` copies the
// ship to the controls. A control that changes writes back to the ship, so that a refresh can
// enter itself until both agree.

#include "Button.h"
#include "CatalogueFile.h"
#include "DragImage.h"
#include "Frame.h"
#include "ImageList.h"
#include "Label.h"
#include "ListView.h"
#include "OptionButton.h"
#include "ShipClass.h"
#include "StatusBar.h"
#include "TextBox.h"
#include "Timer.h"
#include "TrayIcon.h"
#include "TreeView.h"
#include "UpDown.h"
#include "clsMRUFiles.h"
#include "controlArray.h"
#include "frmAmountSlider.h"
#include "frmMainMenus.h"

#include <memory>
#include <optional>

namespace fleetwright {

class Desktop;
class PictureFiles;
class Printer;
class RecoveryFolder;
class SettingsStore;
class StartUpProgress;
class frmExtras;
struct Globals;

/// What the main window needs of the world around it. All of it outlives the window.
struct MainWindowServices {
    std::filesystem::path appFolder;
    CatalogueFile catalogueFile{appFolder / "weaps.dat"};
    std::function<void()> eventLoopTurn;  ///< lets pending events run
    std::function<void()> freeFormulaLibrary;
    /// What keeps the catalogue from being used, as a text to show; empty if nothing does.
    std::function<std::string()> catalogueFaults = [] { return std::string(); };
    Desktop& desktop;
    PictureFiles& pictures;
    StartUpProgress& progress;
    Globals& globals;
    SettingsStore& settings;
    Printer& printer;
    /// The windows that the menus open; the first one is shown above this window.
    std::function<frmExtras&()> extras;
    std::function<void()> showAbout;
    std::function<void()> showMapper;
    std::function<void()> showViewer;
    std::function<void()> showMapCreator;
    /// Where designs are put aside; null if they are not.
    RecoveryFolder* recovery = nullptr;
    /// Without a screen nobody sees the tree, and it is not built.
    bool hasScreen = true;
};

class frmMain : public frmMainMenus {
public:
    explicit frmMain(MainWindowServices services);

    bool g_bLoaded = false;                   ///< the load has finished
    std::unique_ptr<clsMRUFiles> CMRUList;    ///< the ship files used last
    std::unique_ptr<ShipClass> g_Ship;        ///< the current ship; a load replaces the object
    std::unique_ptr<frmAmountSlider> frmSld;  ///< the amount dialog that was opened last

    /// Runs a task now or, if an act is under way that AutoMass has interrupted, when it has ended:
    /// the ship cannot be replaced while it is at work, and is no design that anybody has made.
    void whenIdle(std::function<void()> task);
    /// Replaces the ship by the one in a file; only when idle. False if it does not load; the ship
    /// is a new one all the same, and `fileFault` says why.
    bool loadFile(const std::string& fileName);
    std::optional<Fault> fileFault;  ///< why the last load has failed
    /// Shows the list of recent files in the menu.
    void fillMRU();
    /// Gives the ship its names, without a recalculation.
    void nameShip(const std::string& designer, const std::string& shipName);

    // The mass.
    Frame fraMassNfo{*this,
                     {.name = "fraMassNfo", .place = {105, 0, 3585, 1275}, .caption = "Mass"}};
    Label lblMass{fraMassNfo,
                  {.name = "lblMass", .place = {195, 390, 870, 300}, .caption = "Mass"}};
    TextBox txtMass{fraMassNfo,
                    {.name = "txtMass",
                     .place = {1260, 390, 750, 285},
                     .text = "2",
                     .accessibleName = "Mass",
                     .isLocked = true},
                    [this] { txtMass_Change(); }};
    Label lblMassLft{
        fraMassNfo, {.name = "lblMassLft", .place = {105, 810, 1050, 300}, .caption = "Mass Left"}};
    Label lblMassLeft{fraMassNfo,
                      {.name = "lblMassLeft",
                       .place = {1260, 840, 750, 225},
                       .accessibleDescription = "Mass Left"}};
    Frame fraMassSpinner{fraMassNfo, {.name = "fraMassSpinner", .place = {2100, 315, 1452, 900}}};
    Label Label1{fraMassSpinner, {.name = "Label1", .place = {0, 0, 480, 285}, .caption = "x2"}};
    Label Label2{fraMassSpinner, {.name = "Label2", .place = {480, 0, 480, 285}, .caption = "x10"}};
    Label Label3{fraMassSpinner, {.name = "Label3", .place = {960, 0, 480, 285}, .caption = "x50"}};
    UpDown updwnMass_1{fraMassSpinner,
                       {.name = "updwnMass_1",
                        .place = {96, 288, 192, 396},
                        .toolTip = "Mass in steps of 2",
                        .accessibleName = "Mass in steps of 2"},
                       massHandlers(2)};
    UpDown updwnMass_10{fraMassSpinner,
                        {.name = "updwnMass_10",
                         .place = {576, 288, 192, 396},
                         .toolTip = "Mass in steps of 10",
                         .accessibleName = "Mass in steps of 10"},
                        massHandlers(10)};
    UpDown updwnMass_5{fraMassSpinner,
                       {.name = "updwnMass_5",
                        .place = {1056, 288, 192, 396},
                        .toolTip = "Mass in steps of 50",
                        .accessibleName = "Mass in steps of 50"},
                       massHandlers(50)};

    // The hull.
    Frame fraHull{*this,
                  {.name = "fraHull", .place = {105, 1470, 3552, 2295}, .caption = "Hull Type"}};
    OptionButton optWarship{
        fraHull,
        {.name = "optWarship", .place = {105, 210, 1404, 300}, .caption = "Warship", .isOn = true},
        [this] { optWarship_Click(); }};
    OptionButton optMerchant{
        fraHull,
        {.name = "optMerchant", .place = {105, 525, 1404, 300}, .caption = "Merchant"},
        [this] { optMerchant_Click(); }};
    OptionButton optQship{fraHull,
                          {.name = "optQship", .place = {105, 840, 1404, 300}, .caption = "Q-Ship"},
                          [this] { optQship_Click(); }};
    OptionButton optStarBase{
        fraHull,
        {.name = "optStarBase", .place = {105, 1155, 1404, 300}, .caption = "Star Base"},
        [this] { optStarBase_Click(); }};
    OptionButton optSpaceStation{
        fraHull,
        {.name = "optSpaceStation", .place = {105, 1470, 1404, 300}, .caption = "Space Station"},
        [this] { optSpaceStation_Click(); }};
    OptionButton optQstation{
        fraHull,
        {.name = "optQstation", .place = {105, 1785, 1404, 300}, .caption = "Q-Space Station"},
        [this] { optQstation_Click(); }};

    Frame fraStreamling{
        fraHull,
        {.name = "fraStreamling", .place = {1620, 105, 1845, 1155}, .caption = "Streamlining"}};
    OptionButton optNoStreamline{fraStreamling,
                                 {.name = "optNoStreamline",
                                  .place = {105, 210, 1605, 204},
                                  .caption = "Unstreamlined",
                                  .isOn = true},
                                 [this] { optNoStreamline_Click(); }};
    OptionButton optPartStreamline{fraStreamling,
                                   {.name = "optPartStreamline",
                                    .place = {105, 525, 1572, 204},
                                    .caption = "Partial Streamling"},
                                   [this] { optPartStreamline_Click(); }};
    OptionButton optFullStreamling{fraStreamling,
                                   {.name = "optFullStreamling",
                                    .place = {105, 840, 1572, 204},
                                    .caption = "Full Streamlining"},
                                   [this] { optFullStreamling_Click(); }};

    Frame fraArmor{fraHull,
                   {.name = "fraArmor", .place = {1620, 1365, 1845, 720}, .caption = "Armor"}};
    std::array<OptionButton, 3> optNoArmor = controlArray<OptionButton, 3>([this](int index) {
        return OptionButton(fraArmor,
                            {.name = "optNoArmor" + std::to_string(index),
                             .place = {96 + 576 * index, 210, 492, 375},
                             .caption = index == 0 ? "None" : "Lvl " + std::to_string(index),
                             .isOn = index == 0,
                             .isGraphical = true},
                            [this, index] { optNoArmor_Click(index); });
    });

    // The drives.
    Frame fraFTL{*this, {.name = "fraFTL", .place = {105, 3885, 2310, 945}, .caption = "FTL"}};
    OptionButton optNone{
        fraFTL,
        {.name = "optNone", .place = {105, 210, 645, 645}, .caption = "None", .isGraphical = true},
        [this] { optNone_Click(); }};
    OptionButton optNormal{fraFTL,
                           {.name = "optNormal",
                            .place = {840, 210, 645, 645},
                            .picture = "ftl",
                            .toolTip = "Normal drive",
                            .accessibleName = "Normal FTL drive",
                            .isOn = true,
                            .isGraphical = true},
                           [this] { optNormal_Click(); }};
    OptionButton optTug{fraFTL,
                        {.name = "optTug",
                         .place = {1575, 210, 645, 645},
                         .picture = "ftltug",
                         .toolTip = "Tug drive",
                         .accessibleName = "Tug FTL drive",
                         .isGraphical = true},
                        [this] { optTug_Click(); }};

    Frame fraThrust{*this,
                    {.name = "fraThrust", .place = {105, 4935, 2325, 2430}, .caption = "Thrust"}};
    std::array<OptionButton, 9> optThrust = controlArray<OptionButton, 9>([this](int index) {
        const std::string number = std::to_string(index);
        return OptionButton(fraThrust,
                            {.name = "optThrust" + number,
                             .place = {105 + 735 * (index % 3), 210 + 735 * (index / 3), 645, 645},
                             .picture = "thrust" + number,
                             .toolTip = "Thrust " + number,
                             .accessibleName = "Thrust " + number,
                             .isOn = index == 2,
                             .isGraphical = true},
                            [this, index] { optThrust_Click(index); });
    });

    // The figures.
    Frame fraInfo{*this, {.name = "fraInfo", .place = {3780, 0, 2955, 3900}}};
    Label lblCost = figureLabel("lblCost", "Cost", 192);
    TextBox txtCost = figureBox("txtCost", "Cost", 192, false);
    Label lblDP = figureLabel("lblDP", "DP", 576);
    TextBox txtDP = figureBox("txtDP", "Damage points", 576, false);
    Label lblDamRows = figureLabel("lblDamRows", "Damage Rows", 960);
    TextBox txtDamRows = figureBox("txtDamRows", "Damage rows", 960, true);
    Label lblDCP = figureLabel("lblDCP", "Damage Control", 1365, 120);
    TextBox txtDCP = figureBox("txtDCP", "Damage control parties", 1365, true);
    Label Label5 = figureLabel("Label5", "Fire Controls", 1785);
    TextBox txtFireCon = figureBox("txtFireCon", "Fire controls", 1785, true);
    Label lblClass = figureLabel("lblClass", "Class", 2205);
    TextBox txtClass = figureBox("txtClass", "Class", 2205, true);
    Label lblRelSize = figureLabel("lblRelSize", "Designation", 2625, 105, 1155);
    TextBox txtRelSize = figureBox("txtRelSize", "Designation", 2625, true);
    TextBox txtShipName{fraInfo,
                        {.name = "txtShipName",
                         .place = {210, 3045, 2640, 285},
                         .text = "Ship Name",
                         .accessibleName = "Ship name",
                         .isLocked = true}};
    TextBox txtDesigner{fraInfo,
                        {.name = "txtDesigner",
                         .place = {210, 3465, 2640, 285},
                         .text = "Ship Designer",
                         .accessibleName = "Designer",
                         .isLocked = true}};

    // The systems aboard.
    ListView lvCurrentWeapons{*this,
                              {.name = "lvCurrentWeapons",
                               .place = {2625, 3990, 4110, 3375},
                               .toolTip = "The systems aboard. Drag systems from the tree here; "
                                          "double-click one, or press Delete, to take one away; "
                                          "right-click for more",
                               .accessibleName = "Systems aboard"}};

    // The tree of systems, and its buttons.
    Button cmdBeams = treeButton("cmdBeams", "BEAM", "Beams", {6930, 105, 645, 540});
    Button cmdDefense = treeButton("cmdDefense", "DEFENSE", "Defenses", {7665, 105, 645, 540});
    Button cmdSystems = treeButton("cmdSystems", "SYSTEMS", "Systems", {8400, 105, 645, 540});
    Button cmdHeavy = treeButton("cmdHeavy", "HEAVY", "Heavy weapons", {9135, 105, 645, 540});
    Button cmdSpecial = treeButton("cmdSpecial", "SPECIAL", "Specials", {6930, 735, 645, 540});
    Button cmdHangars = treeButton("cmdHangars", "HANGAR", "Hangars", {7665, 735, 645, 540});
    Button cmdAlien = treeButton("cmdAlien", "ALIEN", "Alien systems", {8400, 735, 645, 540});
    Button cmdCollapseAll{*this,
                          {.name = "cmdCollapseAll",
                           .place = {9975, 105, 645, 540},
                           .picture = "button-collapse-all",
                           .toolTip = "Collapse All",
                           .accessibleName = "Collapse all"},
                          [this] { cmdCollapseAll_Click(); }};
    Button cmdExpandAll{*this,
                        {.name = "cmdExpandAll",
                         .place = {9975, 735, 645, 540},
                         .picture = "button-expand-all",
                         .toolTip = "Expand All",
                         .accessibleName = "Expand all"},
                        [this] { cmdExpandAll_Click(); }};
    ImageList ilWeapons{this, {.name = "ilWeapons"}};
    TreeView tvWeapons{*this,
                       {.name = "tvWeapons",
                        .place = {6825, 1365, 3900, 6000},
                        .toolTip = "The catalogue. Double-click a system, press Enter or drag it "
                                   "to the list to fit one; right-click for more",
                        .accessibleName = "Catalogue of systems"},
                       &ilWeapons};

    // What the selected node (index 0) and the selected row (index 1) weigh and cost.
    std::array<Label, 4> lblWeapNfo = controlArray<Label, 4>([this](int index) {
        constexpr std::array<int, 4> lefts = {6825, 8925, 2625, 4725};
        const auto i = static_cast<std::size_t>(index);
        return Label(*this, {.name = "lblWeapNfo" + std::to_string(index),
                             .place = {lefts[i], 7455, 840, 330},
                             .caption = index % 2 == 0 ? "Mass" : "Cost"});
    });
    std::array<Label, 2> lblWeapMass = controlArray<Label, 2>([this](int index) {
        return Label(*this,
                     {.name = "lblWeapMass" + std::to_string(index),
                      .place = {index == 0 ? 7770 : 3570, 7455, 960, 330},
                      .accessibleDescription = index == 0 ? "Mass of the system in the catalogue"
                                                          : "Mass of the system aboard"});
    });
    std::array<Label, 2> lblWeapCost = controlArray<Label, 2>([this](int index) {
        return Label(*this,
                     {.name = "lblWeapCost" + std::to_string(index),
                      .place = {index == 0 ? 9765 : 5565, 7455, 960, 330},
                      .accessibleDescription = index == 0 ? "Cost of the system in the catalogue"
                                                          : "Cost of the system aboard"});
    });

    StatusBar sbStatus{*this, {.name = "sbStatus", .accessibleDescription = "Status"}};

    DragImage imgDrag{*this, {.name = "imgDrag", .place = {0, 0, 480, 480}, .isVisible = false}};
    TrayIcon tray1{
        *this,
        {.name = "tray1", .picture = "tray", .toolTip = "Nils's Fleetwright"},
        {.leftClick = [this] { restore(); }, .rightClick = [this] { tray1_RightClick(); }}};
    Timer tmrRefreshScreen{*this, "tmrRefreshScreen", 15000, true,
                           [this] { tmrRefreshScreen_Timer(); }};
    /// Two seconds after a change it puts the design aside.
    Timer tmrRecovery{*this, "tmrRecovery", 2000, false, [this] { tmrRecovery_Timer(); }};

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_Resize() override;

private:
    class ActScope;

    // The menus.
    void mnuNew_Click() override;
    void mnuLoad_Click() override;
    void mnuSaveAs_Click() override;
    void mnuSave_Click() override;
    void mnuPrint_Click() override;
    void mnuExit_Click() override { unload(); }
    void mnuMRUFile_Click(int Index) override;
    void mnuStdHull_Click(bool isMerchant, std::int32_t mass) override;
    void mnuExtrasPage_Click() override;
    void mnuSSD_Click() override { m_services.showMapper(); }
    void mnuViewSSD_Click() override { m_services.showViewer(); }
    void mnucreateSSDMap_Click() override { m_services.showMapCreator(); }
    void mnuAutoMass_Click() override;
    void mnuHelp_Click() override;
    void mnuAbout_Click() override { m_services.showAbout(); }
    void mnuAddWeap_Click(std::int32_t amount) override { AddSelectedWeapon(amount); }
    void mnuRestore_Click() override { restore(); }
    void mnuExitTask_Click() override { unload(); }

    // Files.
    void replaceShipAndRows();
    void whenReplaceable(std::function<void()> replace);
    void saveAs(std::string fileName);
    void addRecentFile();
    void printCopies(int copies);

    // Designs put aside.
    void tmrRecovery_Timer();
    void noteSafe();
    bool isSafe() const;
    bool giveUpDesign();
    void showRecovered();

    // The two names.
    void txtShipName_DblClick();
    void txtDesigner_DblClick();
    bool txtShipName_KeyPress(int KeyAscii);
    bool txtDesigner_KeyPress(int KeyAscii);
    void openName(TextBox& box, bool& isEditing);
    void commitName(TextBox& box, bool& isEditing, std::string& name);

    // The tray.
    void tray1_RightClick();
    void restore();
    void keepFindable();

    // Dragging a system to the list.
    void tvWeapons_MouseMove(const MousePress& press);
    void tvWeapons_MouseUp(const MousePress& press);
    void lvCurrentWeapons_DragDrop(const Control& Source);

    Label figureLabel(const std::string& name, const std::string& caption, int top, int left = 105,
                      int width = 1260);
    TextBox figureBox(const std::string& name, const std::string& spoken, int top, bool isLocked);
    Button treeButton(const std::string& name, const std::string& root, const std::string& spoken,
                      Place place);
    UpDown::Handlers massHandlers(std::int32_t step);

    // The ship and its events.
    void replaceShip();
    void g_Ship_Recalculated() { RefreshScreen(); }
    void g_Ship_CloakAndMerchant();
    void g_Ship_ShipLoaded();
    void g_Ship_ShipSaved();
    void g_Ship_WeaponNotFound();
    void g_Ship_AutoMassUnsettled();

    // Showing the ship.
    void RefreshScreen();
    void showFigures();
    void showButtons();
    void previewNode();
    void previewRow(std::size_t row);
    void tmrRefreshScreen_Timer();
    /// Runs an act of the user. One that leaves the width of a number is undone and said so.
    void act(const std::function<void()>& change);
    void runUndoable(const std::function<void()>& change);
    void runWaiting();
    void giveTurn();
    void letActsIn(const std::function<void()>& turn);

    // The tree.
    void addOwnPictures();
    void LoadWeaponTree();
    void toggleCategory(const std::string& root);
    void cmdExpandAll_Click();
    void cmdCollapseAll_Click();
    void tvWeapons_Click();
    void tvWeapons_DblClick();
    void tvWeapons_MouseDown(const MousePress& press);

    // The design.
    void optWarship_Click() { chooseShipHull(Warship); }
    void optMerchant_Click() { chooseShipHull(Merchant); }
    void optQship_Click() { chooseShipHull(QShip); }
    void optStarBase_Click() { chooseBaseHull(Starbase); }
    void optSpaceStation_Click() { chooseBaseHull(SpaceStation); }
    void optQstation_Click() { chooseBaseHull(QSpaceStation); }
    void optNoStreamline_Click() {
        act([=, this] { g_Ship->Streamline(0); });
    }
    void optPartStreamline_Click() {
        act([=, this] { g_Ship->Streamline(1); });
    }
    void optFullStreamling_Click() {
        act([=, this] { g_Ship->Streamline(2); });
    }
    void optNoArmor_Click(int Index) {
        act([=, this] { g_Ship->Armor(Index); });
    }
    void optNone_Click() {
        act([=, this] { g_Ship->FTL(NoDrive); });
    }
    void optNormal_Click() {
        act([=, this] { g_Ship->FTL(NormalDrive); });
    }
    void optTug_Click() {
        act([=, this] { g_Ship->FTL(TugDrive); });
    }
    void optThrust_Click(int Index) {
        act([=, this] { g_Ship->THRUST(static_cast<std::int16_t>(Index)); });
    }
    void chooseShipHull(HullType hullType);
    void chooseBaseHull(HullType hullType);
    void EnableStreamlineGroup(bool isEnabled);
    void EnableFTLGroup(bool isEnabled);
    void EnableThrustGroup(bool isEnabled);

    // The mass.
    void stepMass(std::int32_t step);
    void raiseMassToSmallest();
    void txtMass_Change();
    void txtMass_MouseDown();

    // The systems aboard.
    void AddSelectedWeapon(std::int32_t amount);
    void AddWeaponRow(const std::string& name, std::int32_t amount);
    void showSystems();
    void changeAmount(std::string name, std::int32_t change);
    void lvCurrentWeapons_Click();
    void lvCurrentWeapons_DblClick();
    void lvCurrentWeapons_MouseDown(const MousePress& press);
    void frmSld_CountChanged(std::int32_t amount);

    MainWindowServices m_services;
    std::vector<Connection> m_shipEvents;
    Connection m_countChanged;
    bool bShipNameEditing = false;  ///< the name's box is open
    bool bDesignerEditing = false;  ///< the designer's box is open
    std::string sLastStatus;        ///< the status line at the last tick
    std::string m_asideFile;        ///< the design as it was put aside last
    std::string m_safeFile;         ///< the design as it was when nothing of it could be lost
    int m_actDepth = 0;             ///< acts that are under way, one inside the other
    bool m_isInTurn = false;        ///< the innermost of them has given the event loop its turn
    bool m_saysNotFound = false;    ///< a system is missing, and the box that says so is open
    std::vector<std::function<void()>> m_whenIdle;
};

}  // namespace fleetwright
