#pragma once

#include "Button.h"
#include "ImageList.h"
#include "Menu.h"
#include "Panel.h"
#include "TreeView.h"
#include "controlArray.h"

#include <array>

namespace fleetwright {

class SystemsPanel;

/// The tree of systems, which is built once from the catalogue file, the buttons that open it, and
/// the menu that fits what is selected.
class TreePanel : public Panel {
public:
    /// Fills the pop-up; what is chosen goes aboard. `collapsed` hears that the tree was.
    TreePanel(const PanelContext& context, MenuEntry& mnuAddWeaps, SystemsPanel& aboard,
              Handler collapsed);

    void addRoots();
    /// Adds categories and systems, with their pictures, which are read when they are first looked
    /// at; says how far it has come.
    void LoadWeaponTree();
    /// Adds so many pieces of the selected system to the ship. A category is none.
    void AddSelectedWeapon(std::int32_t amount);
    /// The selected node, if it is a system: one without nodes below it.
    const TreeView::Node* selectedSystem() const;

private:
    MenuEntry& m_addWeaps;
    SystemsPanel& m_aboard;
    Handler m_collapsed;

public:
    Button cmdBeams = button("cmdBeams", "BEAM", "Beams", 6930, 105);
    Button cmdDefense = button("cmdDefense", "DEFENSE", "Defenses", 7665, 105);
    Button cmdSystems = button("cmdSystems", "SYSTEMS", "Systems", 8400, 105);
    Button cmdHeavy = button("cmdHeavy", "HEAVY", "Heavy weapons", 9135, 105);
    Button cmdSpecial = button("cmdSpecial", "SPECIAL", "Specials", 6930, 735);
    Button cmdHangars = button("cmdHangars", "HANGAR", "Hangars", 7665, 735);
    Button cmdAlien = button("cmdAlien", "ALIEN", "Alien systems", 8400, 735);
    Button cmdCollapseAll{form(),
                          {.name = "cmdCollapseAll",
                           .place = {9975, 105, 645, 540},
                           .picture = "button-collapse-all",
                           .toolTip = "Collapse All",
                           .accessibleName = "Collapse all"},
                          [this] { cmdCollapseAll_Click(); }};
    Button cmdExpandAll{form(),
                        {.name = "cmdExpandAll",
                         .place = {9975, 735, 645, 540},
                         .picture = "button-expand-all",
                         .toolTip = "Expand All",
                         .accessibleName = "Expand all"},
                        [this] { cmdExpandAll_Click(); }};
    ImageList ilWeapons{&form(), {.name = "ilWeapons"}};
    TreeView tvWeapons{form(),
                       {.name = "tvWeapons",
                        .place = {6825, 1365, 3900, 6000},
                        .toolTip = "The catalogue. Double-click a system, press Enter or drag it "
                                   "to the list to fit one; right-click for more. Type words of a "
                                   "name, or press Ctrl+F, to find a system",
                        .accessibleName = "Catalogue of systems"},
                       &ilWeapons};

    std::array<MenuEntry, 10> mnuAddWeap = controlArray<MenuEntry, 10>(
        [this](int index) { return addEntry(m_addWeaps, "mnuAddWeap", index + 1); });
    MenuEntry mnuMore{m_addWeaps, {.name = "mnuMore", .caption = "More"}};
    std::array<MenuEntry, 3> mnuAddWeapEx = controlArray<MenuEntry, 3>([this](int index) {
        constexpr std::array<int, 3> amounts = {20, 50, 100};
        return addEntry(mnuMore, "mnuAddWeapEx", amounts[static_cast<std::size_t>(index)]);
    });

private:
    Button button(const std::string& name, const std::string& root, const std::string& spoken,
                  int left, int top);
    MenuEntry addEntry(MenuEntry& menu, const std::string& name, std::int32_t amount);

    Raster readPicture(const std::string& icon) const;
    void toggleCategory(const std::string& root);
    void expandAll(bool isExpanded);
    void cmdExpandAll_Click();
    void cmdCollapseAll_Click();
    void tvWeapons_DblClick();
    void tvWeapons_MouseDown(const MousePress& press);
    void mnuAddWeap_Click(std::int32_t amount);
};

}  // namespace fleetwright
