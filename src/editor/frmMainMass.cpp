// The mass of the ship in the main window. Everything that changes it writes the text of
// `txtMass`, whose change event writes the ship.

#include "frmMain.h"

#include "Desktop.h"
#include "Error.h"
#include "checkedArithmetic.h"
#include "wholeNumber.h"

namespace fleetwright {

UpDown::Handlers frmMain::massHandlers(std::int32_t step) {
    return {.upClick = [this, step] { stepMass(step); },
            .downClick =
                [this, step] {
                    stepMass(-step);
                    raiseMassToSmallest();
                },
            .change = [this] { raiseMassToSmallest(); }};
}

void frmMain::stepMass(std::int32_t step) {
    act([&] { txtMass.setText(std::to_string(checkedAdd(wholeNumber(txtMass.text()), step))); });
}

void frmMain::raiseMassToSmallest() {
    if (g_Ship && wholeNumber(txtMass.text()) < smallestMass) {
        txtMass.setText(std::to_string(smallestMass));
    }
}

void frmMain::txtMass_Change() {
    if (!txtMass.text().empty()) {
        act([&] { g_Ship->mass(wholeNumber(txtMass.text())); });
    }
}

void frmMain::txtMass_MouseDown() {
    // A box that was out for a moment has dropped whatever it was doing with the press.
    txtMass.setEnabled(false);
    txtMass.setEnabled(true);
    m_services.desktop.popUp(mnuStdHulls);
}

void frmMain::mnuStdHull_Click(bool isMerchant, std::int32_t mass) {
    act([&] {
        (isMerchant ? optMerchant : optWarship).setOn();
        txtMass.setText(std::to_string(mass));
    });
}

void frmMain::mnuAutoMass_Click() {
    act([&] {
        mnuAutoMass.setChecked(!mnuAutoMass.isChecked());
        g_Ship->g_bAutoMass = mnuAutoMass.isChecked();
        fraMassSpinner.setVisible(!mnuAutoMass.isChecked());
        g_Ship->weapChange();
    });
}

}  // namespace fleetwright
