#pragma once

#include "ListView.h"
#include "Panel.h"
#include "frmAmountSlider.h"

#include <functional>

namespace fleetwright {

/// The list of the systems aboard. It is a second copy of the ship's amounts: each change of an
/// amount changes a row and then the ship, and a refusal takes the row back.
class SystemsPanel : public Panel {
public:
    /// `selectionGone` hears when a refusal has taken the selected row away.
    SystemsPanel(const PanelContext& context, std::function<void()> selectionGone);

    void addColumns();
    /// Brings the rows to what the ship has aboard. Rows that stay keep their order.
    void show();
    /// The records of the systems in the list, in its order, and the same list again for what the
    /// ship has aboard now. The selected system stays selected, or what takes its place.
    std::vector<std::size_t> records() const;
    void showRows(const std::vector<std::size_t>& records);
    /// Adds so many pieces of a system to the ship, or takes them away if negative.
    void changeAmount(std::string name, std::int32_t change);

    std::unique_ptr<frmAmountSlider> frmSld;  ///< the amount dialog that was opened last

    ListView lvCurrentWeapons{form(),
                              {.name = "lvCurrentWeapons",
                               .place = {2625, 3990, 4110, 3375},
                               .toolTip = "The systems aboard. Drag systems from the tree here; "
                                          "double-click one, or press Delete, to take one away; "
                                          "right-click for more",
                               .accessibleName = "Systems aboard"}};

private:
    void lvCurrentWeapons_DblClick();
    void lvCurrentWeapons_MouseDown(const MousePress& press);
    void frmSld_CountChanged(std::int32_t amount);
    void AddWeaponRow(const std::string& name, std::int32_t amount);
    std::string selectedSystem() const;

    std::function<void()> m_selectionGone;
    Connection m_countChanged;
};

}  // namespace fleetwright
