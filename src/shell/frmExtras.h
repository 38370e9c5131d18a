#pragma once

#include "Button.h"
#include "CheckBox.h"
#include "Form.h"
#include "Label.h"
#include "Line.h"
#include "TextBox.h"

#include <functional>

namespace fleetwright {

class Desktop;
class SettingsStore;
struct Globals;

/// The page of the settings, and of the names of the ship at hand. Whoever opens it loads it, puts
/// the ship's names into the boxes and shows it.
class frmExtras : public Form {
public:
    struct Services {
        Desktop& desktop;
        Globals& globals;
        SettingsStore& settings;
        /// Gives the ship its names: designer, ship.
        std::function<void(const std::string&, const std::string&)> nameShip;
        std::function<void()> clearRecentFiles;
    };

    explicit frmExtras(Services services);

    // In the order in which the keyboard goes through them.
    Label lblDesigner{
        *this, {.name = "lblDesigner", .place = {105, 165, 990, 285}, .caption = "Designer"}};
    TextBox txtDesigner{*this,
                        {.name = "txtDesigner",
                         .place = {1155, 120, 2310, 345},
                         .text = "Designer",
                         .accessibleName = "Designer"}};
    Label lblShipName{
        *this, {.name = "lblShipName", .place = {105, 600, 990, 285}, .caption = "Ship Name"}};
    TextBox txtShipName{*this,
                        {.name = "txtShipName",
                         .place = {1155, 555, 2310, 345},
                         .text = "Name",
                         .accessibleName = "Ship Name"}};
    Button cmdOK{*this,
                 {.name = "cmdOK", .place = {105, 4785, 1590, 435}, .caption = "OK"},
                 [this] { cmdOK_Click(); }};
    Button cmdCancel{*this,
                     {.name = "cmdCancel",
                      .place = {1875, 4785, 1590, 435},
                      .caption = "Cancel",
                      .isCancel = true},
                     [this] { cmdCancel_Click(); }};
    CheckBox chkSounds{
        *this, {.name = "chkSounds", .place = {105, 1290, 3360, 330}, .caption = "Play Sounds"}};
    CheckBox chkMinimized{*this,
                          {.name = "chkMinimized",
                           .place = {105, 1725, 3360, 330},
                           .caption = "Hide when Minimized"}};
    Button cmdSaveSettings{*this,
                           {.name = "cmdSaveSettings",
                            .place = {105, 3630, 3360, 435},
                            .caption = "Save Settings",
                            .toolTip = "Stores the three switches, and the designer above as the "
                                       "one of each first new ship"},
                           [this] { cmdSaveSettings_Click(); }};
    Button cmdClearMRU{*this,
                       {.name = "cmdClearMRU",
                        .place = {105, 3045, 3360, 435},
                        .caption = "Clear Recent File List"},
                       [this] { cmdClearMRU_Click(); }};
    CheckBox chkConfirmExit{
        *this,
        {.name = "chkConfirmExit", .place = {105, 2160, 3360, 330}, .caption = "Confirm on Exit"}};
    Line lineNames{*this, {.name = "Line1", .place = {105, 1080, 3360, 30}}};
    Line lineCommands{*this, {.name = "Line1", .place = {105, 4485, 3360, 30}}};

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    bool txtDesigner_KeyPress(int KeyAscii);
    bool txtShipName_KeyPress(int KeyAscii);
    void cmdOK_Click();
    void cmdCancel_Click() { unload(); }
    void cmdClearMRU_Click();
    void cmdSaveSettings_Click();
    void store(const std::function<void()>& settings);

    Services m_services;
    bool m_wasActive = false;  ///< it has been the active window before
};

}  // namespace fleetwright
