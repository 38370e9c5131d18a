// The list of the systems aboard in the main window. It is a second copy of the ship's amounts:
// each change of an amount changes a row and then the ship, and a refusal takes the row back.

#include "frmMain.h"

#include "Desktop.h"
#include "checkedArithmetic.h"
#include "wholeNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace fleetwright {

void frmMain::AddSelectedWeapon(std::int32_t amount) {
    const TreeView::Node* const node = tvWeapons.selected();
    if (node != nullptr && node->children.empty()) {
        changeAmount(node->key, amount);
    }
}

void frmMain::AddWeaponRow(const std::string& name, std::int32_t amount) {
    const std::optional<std::size_t> row = lvCurrentWeapons.find(name);
    if (!row) {
        lvCurrentWeapons.add(name, name, std::to_string(amount));
        return;
    }
    const std::int32_t count =
        checkedAdd(wholeNumber(lvCurrentWeapons.rows()[*row].subItem), amount);
    if (count == 0) {
        lvCurrentWeapons.remove(*row);
    } else {
        lvCurrentWeapons.setSubItem(*row, std::to_string(count));
    }
}

/// Brings the rows to what the ship has aboard. Rows that stay keep their order.
void frmMain::showSystems() {
    const std::vector<WeapRec> aboard = g_Ship->systemsAboard();
    for (std::size_t row = lvCurrentWeapons.rows().size(); row-- > 0;) {
        const std::string& key = lvCurrentWeapons.rows()[row].key;
        if (std::none_of(aboard.begin(), aboard.end(),
                         [&](const WeapRec& system) { return system.name == key; })) {
            lvCurrentWeapons.remove(row);
        }
    }
    for (const WeapRec& system : aboard) {
        const std::string count = std::to_string(system.amount);
        if (const auto row = lvCurrentWeapons.find(system.name)) {
            lvCurrentWeapons.setSubItem(*row, count);
        } else {
            lvCurrentWeapons.add(std::string(system.name), std::string(system.name), count);
        }
    }
}

/// Adds so many pieces to the ship, or takes them away. The row changes first, since the ship's
/// recalculation ends in a refresh that reads it. The name is a copy: its row may go.
void frmMain::changeAmount(const std::string name, std::int32_t change) {
    act([&] {
        const ListView::Content before = lvCurrentWeapons.content();
        bool isTaken = false;
        try {
            AddWeaponRow(name, change);
            isTaken = g_Ship->addWeap(name, change);
        } catch (...) {
            lvCurrentWeapons.setContent(before);
            throw;
        }
        if (!isTaken) {
            lvCurrentWeapons.setContent(before);
            showSystems();  // AutoMass may have let other acts in
        }
    });
}

void frmMain::lvCurrentWeapons_Click() {
    if (const auto row = lvCurrentWeapons.selected()) {
        act([this, row] { previewRow(*row); });
    }
}

/// Shows what all pieces of a row together weigh and cost.
void frmMain::previewRow(std::size_t row) {
    if (row >= lvCurrentWeapons.rows().size()) {
        return;
    }
    const std::string name = lvCurrentWeapons.rows()[row].key;
    const std::int32_t amount = wholeNumber(lvCurrentWeapons.rows()[row].subItem);
    lblWeapMass[1].setCaption(std::to_string(g_Ship->previewWeapMass(name, amount)));
    lblWeapCost[1].setCaption(std::to_string(g_Ship->previewWeapCost(name, amount)));
}

void frmMain::lvCurrentWeapons_DblClick() {
    if (const auto row = lvCurrentWeapons.selected()) {
        changeAmount(lvCurrentWeapons.rows()[*row].key, -1);
    }
}

void frmMain::lvCurrentWeapons_MouseDown(const MousePress& press) {
    const auto row = lvCurrentWeapons.selected();
    if (press.button != RightButton || !row) {
        return;
    }
    frmSld = std::make_unique<frmAmountSlider>();
    frmSld->iOriginal = wholeNumber(lvCurrentWeapons.rows()[*row].subItem);
    // The fields end at 32767 twips, which a wide screen does not; there the dialog opens as near
    // as they reach.
    const auto place = [](double twips) {
        using Limits = std::numeric_limits<std::int16_t>;
        return static_cast<std::int16_t>(
            std::clamp(std::nearbyint(twips), double{Limits::min()}, double{Limits::max()}));
    };
    frmSld->iX = place(lvCurrentWeapons.place().left + left() + press.x);
    frmSld->iY = place(lvCurrentWeapons.place().top + top() + press.y);
    m_countChanged =
        frmSld->CountChanged.connect([this](std::int32_t amount) { frmSld_CountChanged(amount); });
    m_services.desktop.showModal(*frmSld, *this);
}

void frmMain::frmSld_CountChanged(std::int32_t amount) {
    if (const auto row = lvCurrentWeapons.selected()) {
        changeAmount(lvCurrentWeapons.rows()[*row].key, -amount);
    }
}

}  // namespace fleetwright
