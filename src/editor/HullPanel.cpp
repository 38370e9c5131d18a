#include "HullPanel.h"

#include "designWords.h"
#include "text.h"

#include <string>
#include <string_view>

namespace fleetwright {

namespace {

/// Has the tool tips in a group say why it is closed, if it is.
void explain(Frame& group, bool isOpen, std::string_view reason) {
    if (group.isEnabled() == isOpen) {
        return;
    }
    const std::string why = asSentence(reason);
    for (Control* const control : group.controls()) {
        const std::string tip = control->toolTip();
        const std::string own = tip.substr(0, tip.find('\n'));
        control->setToolTip(isOpen        ? (own == why ? "" : own)
                            : own.empty() ? why
                                          : own + '\n' + why);
    }
    group.setToolTip(isOpen ? "" : why);
}

}  // namespace

void HullPanel::show() {
    const std::array<OptionButton*, 7> hulls = {nullptr,     &optWarship,  &optMerchant,
                                                &optQship,   &optStarBase, &optSpaceStation,
                                                &optQstation};
    const std::array<OptionButton*, 3> streamlinings = {&optNoStreamline, &optPartStreamline,
                                                        &optFullStreamling};
    const std::array<OptionButton*, 4> drives = {&optNone, &optNormal, nullptr, &optTug};
    const auto setOn = [](const auto& buttons, std::int32_t code) {
        const bool hasButton = code >= 0 && code < std::ssize(buttons);
        OptionButton* const button = hasButton ? buttons[static_cast<std::size_t>(code)] : nullptr;
        if (button != nullptr) {
            button->setOn();
        }
    };
    setOn(hulls, ship().Hull());
    setOn(streamlinings, ship().Streamline());
    optNoArmor[static_cast<std::size_t>(ship().Armor())].setOn();
    if (const std::int16_t thrust = ship().THRUST(); thrust >= 0 && thrust <= mostThrust) {
        optThrust[static_cast<std::size_t>(thrust)].setOn();
    }
    setOn(drives, ship().FTL());
    const bool isShip = !isBase(ship().Hull());
    EnableStreamlineGroup(isShip);
    EnableFTLGroup(isShip);
    EnableThrustGroup(isShip);
}

void HullPanel::optNoArmor_Click(int Index) {
    act([&] { ship().Armor(Index); });
}

void HullPanel::optThrust_Click(int Index) {
    act([&] { ship().THRUST(static_cast<std::int16_t>(Index)); });
}

void HullPanel::streamline(std::int16_t level) {
    act([&] { ship().Streamline(level); });
}

void HullPanel::drive(FtlDrive ftl) {
    act([&] { ship().FTL(ftl); });
}

void HullPanel::chooseShipHull(HullType hullType) {
    act([&] { ship().Hull(hullType); });
}

/// The buttons of the three groups that a base does not have write through their own clicks. A
/// refresh in the middle sets the old hull's button on again; the refresh after the last step runs
/// this handler once more.
void HullPanel::chooseBaseHull(HullType hullType) {
    act([&] {
        optNone.setOn();
        optThrust[0].setOn();
        optNoStreamline.setOn();
        ship().Hull(hullType);
    });
}

void HullPanel::EnableStreamlineGroup(bool isEnabled) {
    explain(fraStreamling, isEnabled, noStreamlining);
    optFullStreamling.setEnabled(isEnabled);
    optPartStreamline.setEnabled(isEnabled);
    optNoStreamline.setEnabled(isEnabled);
    fraStreamling.setEnabled(isEnabled);
}

void HullPanel::EnableFTLGroup(bool isEnabled) {
    explain(fraFTL, isEnabled, noFtlDrive);
    optNone.setEnabled(isEnabled);
    optNormal.setEnabled(isEnabled);
    optTug.setEnabled(isEnabled);
    fraFTL.setEnabled(isEnabled);
}

void HullPanel::EnableThrustGroup(bool isEnabled) {
    explain(fraThrust, isEnabled, noThrust);
    for (OptionButton& button : optThrust) {
        button.setEnabled(isEnabled);
    }
    fraThrust.setEnabled(isEnabled);
}

}  // namespace fleetwright
