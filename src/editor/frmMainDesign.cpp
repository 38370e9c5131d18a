// The option groups of the main window: hull, streamlining, armor, drive and thrust.

#include "frmMain.h"

namespace fleetwright {

/// Sets the option button for each of the ship's codes on, and opens the groups that its hull has.
/// A code without a button sets none.
void frmMain::showButtons() {
    const std::array<OptionButton*, 7> hulls = {nullptr,     &optWarship,  &optMerchant,
                                                &optQship,   &optStarBase, &optSpaceStation,
                                                &optQstation};
    const std::array<OptionButton*, 3> streamlinings = {&optNoStreamline, &optPartStreamline,
                                                        &optFullStreamling};
    const std::array<OptionButton*, 4> drives = {&optNone, &optNormal, nullptr, &optTug};
    const auto show = [](const auto& buttons, std::int32_t code) {
        const bool hasButton = code >= 0 && code < std::ssize(buttons);
        OptionButton* const button = hasButton ? buttons[static_cast<std::size_t>(code)] : nullptr;
        if (button != nullptr) {
            button->setOn();
        }
    };
    show(hulls, g_Ship->Hull());
    show(streamlinings, g_Ship->Streamline());
    optNoArmor[static_cast<std::size_t>(g_Ship->Armor())].setOn();
    if (const std::int16_t thrust = g_Ship->THRUST(); thrust >= 0 && thrust <= mostThrust) {
        optThrust[static_cast<std::size_t>(thrust)].setOn();
    }
    show(drives, g_Ship->FTL());
    const bool isShip = !isBase(g_Ship->Hull());
    EnableStreamlineGroup(isShip);
    EnableFTLGroup(isShip);
    EnableThrustGroup(isShip);
}

void frmMain::chooseShipHull(HullType hullType) {
    act([&] { g_Ship->Hull(hullType); });
}

/// The buttons of the three groups that a base does not have write through their own clicks. A
/// refresh in the middle sets the old hull's button on again; the refresh after the last step runs
/// this handler once more.
void frmMain::chooseBaseHull(HullType hullType) {
    act([&] {
        optNone.setOn();
        optThrust[0].setOn();
        optNoStreamline.setOn();
        g_Ship->Hull(hullType);
    });
}

void frmMain::EnableStreamlineGroup(bool isEnabled) {
    optFullStreamling.setEnabled(isEnabled);
    optPartStreamline.setEnabled(isEnabled);
    optNoStreamline.setEnabled(isEnabled);
    fraStreamling.setEnabled(isEnabled);
}

void frmMain::EnableFTLGroup(bool isEnabled) {
    optNone.setEnabled(isEnabled);
    optNormal.setEnabled(isEnabled);
    optTug.setEnabled(isEnabled);
    fraFTL.setEnabled(isEnabled);
}

void frmMain::EnableThrustGroup(bool isEnabled) {
    for (OptionButton& button : optThrust) {
        button.setEnabled(isEnabled);
    }
    fraThrust.setEnabled(isEnabled);
}

}  // namespace fleetwright
