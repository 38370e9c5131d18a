#pragma once

#include "Frame.h"
#include "Label.h"
#include "Menu.h"
#include "Panel.h"
#include "TextBox.h"
#include "UpDown.h"

#include <cstdint>

namespace fleetwright {

/// The mass of the ship: its arrows, AutoMass, and the standard hulls. Everything that changes it
/// writes the text of `txtMass`, whose change event writes the ship.
class MassPanel : public Panel {
public:
    /// Fills the menu of standard hulls, and adds AutoMass to the extras. `chooseHull` makes the
    /// ship a merchant, or a warship.
    MassPanel(const PanelContext& context, MenuEntry& mnuStdHulls, MenuEntry& mnuExtras,
              std::function<void(bool isMerchant)> chooseHull);

    void show();
    /// Puts the mark of AutoMass on or takes it away, and with it the arrows away or on.
    void markAutoMass(bool isOn);

private:
    MenuEntry& m_stdHulls;
    MenuEntry& m_extras;
    std::function<void(bool isMerchant)> m_chooseHull;

public:
    Frame fraMassNfo{form(),
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
    UpDown updwnMass_1 = arrows("updwnMass_1", 96, 2);
    UpDown updwnMass_10 = arrows("updwnMass_10", 576, 10);
    UpDown updwnMass_5 = arrows("updwnMass_5", 1056, 50);

    MenuEntry mnuMilitary{m_stdHulls, {.name = "mnuMilitary", .caption = "Military"}};
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
    MenuEntry mnuCivilian{m_stdHulls, {.name = "mnuCivilian", .caption = "Civilian"}};
    MenuEntry mnuSurveyCruiser = merchant("mnuSurveyCruiser", "Survey Cruiser", 48);
    MenuEntry mnuHvyFreighter = merchant("mnuHvyFreighter", "Heavy Freighter", 60);
    MenuEntry mnuTAnker = merchant("mnuTAnker", "Bulk Tanker", 100);

    MenuEntry mnuAutoMass{
        m_extras, {.name = "mnuAutoMass", .caption = "AutoMass"}, [this] { mnuAutoMass_Click(); }};

private:
    UpDown arrows(const std::string& name, int left, std::int32_t step);
    MenuEntry warship(const std::string& name, const std::string& caption, std::int32_t mass);
    MenuEntry merchant(const std::string& name, const std::string& caption, std::int32_t mass);

    void txtMass_Change();
    void txtMass_LostFocus();
    void txtMass_MouseDown();
    bool txtMass_KeyPress(int KeyAscii);
    void mnuStdHull_Click(bool isMerchant, std::int32_t mass);
    void mnuAutoMass_Click();
    void stepMass(std::int32_t step);
    void raiseMassToSmallest();
};

}  // namespace fleetwright
