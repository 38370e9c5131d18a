#include "MassPanel.h"

#include "Desktop.h"
#include "checkedArithmetic.h"
#include "wholeNumber.h"

namespace fleetwright {

MassPanel::MassPanel(const PanelContext& context, MenuEntry& mnuStdHulls, MenuEntry& mnuExtras,
                     std::function<void(bool isMerchant)> chooseHull)
    : Panel(context), m_stdHulls(mnuStdHulls), m_extras(mnuExtras),
      m_chooseHull(std::move(chooseHull)) {
    txtMass.onLostFocus = [this] { txtMass_LostFocus(); };
    txtMass.onMouseDown = [this](const MousePress&) { txtMass_MouseDown(); };
    txtMass.onKeyPress = [this](int key) { return txtMass_KeyPress(key); };
}

UpDown MassPanel::arrows(const std::string& name, int left, std::int32_t step) {
    const std::string spoken = "Mass in steps of " + std::to_string(step);
    return UpDown(
        fraMassSpinner,
        {.name = name, .place = {left, 288, 192, 396}, .toolTip = spoken, .accessibleName = spoken},
        {.upClick = [this, step] { stepMass(step); },
         .downClick =
             [this, step] {
                 stepMass(-step);
                 raiseMassToSmallest();
             },
         .change = [this] { raiseMassToSmallest(); }});
}

MenuEntry MassPanel::warship(const std::string& name, const std::string& caption,
                             std::int32_t mass) {
    return MenuEntry(mnuMilitary, {.name = name, .caption = caption},
                     [this, mass] { mnuStdHull_Click(false, mass); });
}

MenuEntry MassPanel::merchant(const std::string& name, const std::string& caption,
                              std::int32_t mass) {
    return MenuEntry(mnuCivilian, {.name = name, .caption = caption},
                     [this, mass] { mnuStdHull_Click(true, mass); });
}

void MassPanel::show() {
    lblMassLeft.setCaption(std::to_string(ship().g_iMassLeft));
    lblMassLeft.setAlarming(ship().g_iMassLeft < 0);
    txtMass.setText(std::to_string(ship().mass()));
}

void MassPanel::markAutoMass(bool isOn) {
    mnuAutoMass.setChecked(isOn);
    fraMassSpinner.setVisible(!isOn);
}

void MassPanel::stepMass(std::int32_t step) {
    act([&] { txtMass.setText(std::to_string(checkedAdd(wholeNumber(txtMass.text()), step))); },
        "mass " + std::to_string(step));
}

void MassPanel::raiseMassToSmallest() {
    if (window().g_Ship && wholeNumber(txtMass.text()) < smallestMass) {
        txtMass.setText(std::to_string(smallestMass));
    }
}

void MassPanel::txtMass_Change() {
    if (!txtMass.text().empty()) {
        act([&] { ship().mass(wholeNumber(txtMass.text())); });
    }
}

void MassPanel::txtMass_LostFocus() {
    raiseMassToSmallest();
}

void MassPanel::txtMass_MouseDown() {
    // A box that was out for a moment has dropped whatever it was doing with the press.
    txtMass.setEnabled(false);
    txtMass.setEnabled(true);
    window().say("A standard hull sets hull type and mass of this design");
    services().desktop.popUp(m_stdHulls);
}

bool MassPanel::txtMass_KeyPress(int KeyAscii) {
    if (isTyping(KeyAscii)) {
        window().say(
            mnuAutoMass.isChecked()
                ? "AutoMass sets the mass: choose it again, in the menu Extras, to end that"
                : "The arrows beside it change the mass, and so do the standard hulls");
    }
    return false;
}

void MassPanel::mnuStdHull_Click(bool isMerchant, std::int32_t mass) {
    act([&] {
        m_chooseHull(isMerchant);
        txtMass.setText(std::to_string(mass));
    });
}

void MassPanel::mnuAutoMass_Click() {
    act([&] {
        markAutoMass(!mnuAutoMass.isChecked());
        ship().g_bAutoMass = mnuAutoMass.isChecked();
        ship().weapChange();
    });
}

}  // namespace fleetwright
