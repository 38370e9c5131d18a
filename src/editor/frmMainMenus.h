#pragma once

#include "Form.h"
#include "Menu.h"
#include "controlArray.h"

#include <cstdint>

namespace fleetwright {

/// The menus of the main window: the bar from left to right, then those that are shown as pop-ups.
/// What each entry does is the window's business.
class frmMainMenus : public Form {
public:
    MenuEntry mnuFile{*this, {.name = "mnuFile", .caption = "File"}};
    MenuEntry mnuNew{mnuFile, {.name = "mnuNew", .caption = "&New", .shortcut = "Ctrl+N"}, [this] {
                         mnuNew_Click();
                     }};
    MenuEntry mnuLoad{mnuFile,
                      {.name = "mnuLoad", .caption = "&Load", .shortcut = "Ctrl+L"},
                      [this] { mnuLoad_Click(); }};
    MenuEntry mnuSaveAs{mnuFile,
                        {.name = "mnuSaveAs", .caption = "Save &As", .shortcut = "Ctrl+A"},
                        [this] { mnuSaveAs_Click(); }};
    MenuEntry mnuSave{mnuFile,
                      {.name = "mnuSave", .caption = "&Save", .shortcut = "Ctrl+S"},
                      [this] { mnuSave_Click(); }};
    MenuEntry mnuPrint{mnuFile,
                       {.name = "mnuPrint", .caption = "Print", .shortcut = "Ctrl+P"},
                       [this] { mnuPrint_Click(); }};
    MenuEntry mnuSep1{mnuFile, {.name = "mnuSep1", .caption = "-"}};
    MenuEntry mnuExit{mnuFile,
                      {.name = "mnuExit", .caption = "E&xit", .shortcut = "Ctrl+X"},
                      [this] { mnuExit_Click(); }};
    MenuEntry mnuMRUSep{mnuFile, {.name = "mnuMRUSep", .caption = "-", .isVisible = false}};
    /// Indexes count from 1; place 0 stands for index 1.
    std::array<MenuEntry, 5> mnuMRUFile = controlArray<MenuEntry, 5>([this](int place) {
        const std::string index = std::to_string(place + 1);
        return MenuEntry(mnuFile,
                         {.name = "mnuMRUFile" + index,
                          .caption = index,
                          .isVerbatim = true,
                          .isVisible = false},
                         [this, place] { mnuMRUFile_Click(place + 1); });
    });

    MenuEntry mnuStdHulls{*this, {.name = "mnuStdHulls", .caption = "Standard Hulls"}};
    MenuEntry mnuMilitary{mnuStdHulls, {.name = "mnuMilitary", .caption = "Military"}};
    MenuEntry mnuCourier = warship("mnuCourier", "Courier", 2);
    MenuEntry mnuScoutShip = warship("mnuScoutShip", "Scoutship", 4);
    MenuEntry mnuCorvette = warship("mnuCorvette", "Corvette", 6);
    MenuEntry mnuFrigate = warship("mnuFrigate", "Frigate", 10);
    MenuEntry mnuDestroyer = warship("mnuDestroyer", "Destroyer", 14);
    MenuEntry mnuSep3{mnuMilitary, {.name = "mnuSep3", .caption = "-"}};
    MenuEntry mnuLightCruiser = warship("mnuLightCruiser", "Light Cruiser", 22);
    MenuEntry mnuEscortCruiser = warship("mnuEscortCruiser", "Escort Cruiser", 26);
    MenuEntry mnuHeavyCruiser = warship("mnuHeavyCruiser", "Heavy Cruiser", 32);
    MenuEntry mnuSep4{mnuMilitary, {.name = "mnuSep4", .caption = "-"}};
    MenuEntry mnuBattleCruiser = warship("mnuBattleCruiser", "Battlecrusier", 40);
    MenuEntry mnuBattleShip = warship("mnuBattleShip", "Battleship", 48);
    MenuEntry mnuBattleDreadnought = warship("mnuBattleDreadnought", "Battledreadnought", 60);
    MenuEntry mnuSuperdreadnought = warship("mnuSuperdreadnought", "Superdreadnought", 80);
    MenuEntry mnuLightCarrier = warship("mnuLightCarrier", "Light Carrier", 70);
    MenuEntry mnuFleetCarrier = warship("mnuFleetCarrier", "Fleet Carrier", 90);
    MenuEntry mnuCivilian{mnuStdHulls, {.name = "mnuCivilian", .caption = "Civilian"}};
    MenuEntry mnuSurveyCruiser = merchant("mnuSurveyCruiser", "Survey Cruiser", 48);
    MenuEntry mnuHvyFreighter = merchant("mnuHvyFreighter", "Heavy Freighter", 60);
    MenuEntry mnuTAnker = merchant("mnuTAnker", "Bulk Tanker", 100);

    MenuEntry mnuExtras{*this, {.name = "mnuExtras", .caption = "Extras"}};
    MenuEntry mnuExtrasPage{mnuExtras, {.name = "mnuExtrasPage", .caption = "Extras Page"}, [this] {
                                mnuExtrasPage_Click();
                            }};
    MenuEntry mnuSepPage{mnuExtras, {.name = "mnuSepPage", .caption = "-"}};
    MenuEntry mnuSSD{
        mnuExtras, {.name = "mnuSSD", .caption = "Create SSD"}, [this] { mnuSSD_Click(); }};
    MenuEntry mnuViewSSD{
        mnuExtras, {.name = "mnuViewSSD", .caption = "View SSD"}, [this] { mnuViewSSD_Click(); }};
    MenuEntry mnucreateSSDMap{mnuExtras,
                              {.name = "mnucreateSSDMap", .caption = "Create SSD Map"},
                              [this] { mnucreateSSDMap_Click(); }};
    MenuEntry mnuSepMap{mnuExtras, {.name = "mnuSepMap", .caption = "-"}};
    MenuEntry mnuAutoMass{
        mnuExtras, {.name = "mnuAutoMass", .caption = "AutoMass"}, [this] { mnuAutoMass_Click(); }};

    MenuEntry mnuHelpTop{*this, {.name = "mnuHelpTop", .caption = "Help"}};
    MenuEntry mnuHelp{mnuHelpTop, {.name = "mnuHelp", .caption = "Help", .shortcut = "F1"}, [this] {
                          mnuHelp_Click();
                      }};
    MenuEntry mnuSepHelp{mnuHelpTop, {.name = "mnuSepHelp", .caption = "-"}};
    MenuEntry mnuAbout{mnuHelpTop,
                       {.name = "mnuAbout", .caption = "About", .shortcut = "F12"},
                       [this] { mnuAbout_Click(); }};

    // The pop-up of the tree.
    MenuEntry mnuAddWeaps{*this,
                          {.name = "mnuAddWeaps", .caption = "AddWeaps", .isVisible = false}};
    std::array<MenuEntry, 10> mnuAddWeap = controlArray<MenuEntry, 10>(
        [this](int index) { return addEntry(mnuAddWeaps, "mnuAddWeap", index + 1); });
    MenuEntry mnuMore{mnuAddWeaps, {.name = "mnuMore", .caption = "More"}};
    std::array<MenuEntry, 3> mnuAddWeapEx = controlArray<MenuEntry, 3>([this](int index) {
        constexpr std::array<int, 3> amounts = {20, 50, 100};
        return addEntry(mnuMore, "mnuAddWeapEx", amounts[static_cast<std::size_t>(index)]);
    });

    // The pop-up of the tray icon.
    MenuEntry mnuTaskBarFunctions{
        *this, {.name = "mnuTaskBarFunctions", .caption = "Task Bar", .isVisible = false}};
    MenuEntry mnuRestore{mnuTaskBarFunctions, {.name = "mnuRestore", .caption = "Restore"}, [this] {
                             mnuRestore_Click();
                         }};
    MenuEntry mnuSepTask{mnuTaskBarFunctions, {.name = "mnuSepTask", .caption = "-"}};
    MenuEntry mnuExitTask{mnuTaskBarFunctions, {.name = "mnuExitTask", .caption = "Exit"}, [this] {
                              mnuExitTask_Click();
                          }};

protected:
    using Form::Form;

private:
    virtual void mnuNew_Click() = 0;
    virtual void mnuLoad_Click() = 0;
    virtual void mnuSaveAs_Click() = 0;
    virtual void mnuSave_Click() = 0;
    virtual void mnuPrint_Click() = 0;
    virtual void mnuExit_Click() = 0;
    virtual void mnuMRUFile_Click(int Index) = 0;
    /// One of the standard hulls: a warship or a merchant of this mass.
    virtual void mnuStdHull_Click(bool isMerchant, std::int32_t mass) = 0;
    virtual void mnuExtrasPage_Click() = 0;
    virtual void mnuSSD_Click() = 0;
    virtual void mnuViewSSD_Click() = 0;
    virtual void mnucreateSSDMap_Click() = 0;
    virtual void mnuAutoMass_Click() = 0;
    virtual void mnuHelp_Click() = 0;
    virtual void mnuAbout_Click() = 0;
    virtual void mnuAddWeap_Click(std::int32_t amount) = 0;
    virtual void mnuRestore_Click() = 0;
    virtual void mnuExitTask_Click() = 0;

    MenuEntry warship(const char* name, const char* caption, std::int32_t mass) {
        return MenuEntry(mnuMilitary, {.name = name, .caption = caption},
                         [this, mass] { mnuStdHull_Click(false, mass); });
    }
    MenuEntry merchant(const char* name, const char* caption, std::int32_t mass) {
        return MenuEntry(mnuCivilian, {.name = name, .caption = caption},
                         [this, mass] { mnuStdHull_Click(true, mass); });
    }
    MenuEntry addEntry(MenuEntry& menu, const char* name, std::int32_t amount) {
        const std::string number = std::to_string(amount);
        return MenuEntry(menu, {.name = name + number, .caption = "X" + number},
                         [this, amount] { mnuAddWeap_Click(amount); });
    }
};

}  // namespace fleetwright
