#pragma once

#include "Panel.h"
#include "TextBox.h"

#include <string>
#include <utility>

namespace fleetwright {

/// The names of the ship and of its designer. A double-click, or F2, opens a box; the Enter key or
/// another double-click commits what it holds, and Escape takes it back. Names are written past the
/// recalculation.
class NamesPanel : public Panel {
public:
    /// Stands below the figures. `changed` hears of a name that was committed.
    NamesPanel(const PanelContext& context, Container& fraInfo, Handler changed);

    void show();
    /// What the last act has said of a name that was being typed and gave way; empty if none did.
    std::string takeNotKept() { return std::exchange(m_notKept, {}); }
    /// Gives the ship its names.
    void nameShip(const std::string& designer, const std::string& shipName);

private:
    Container& m_fraInfo;
    Handler m_changed;

public:
    TextBox txtShipName{m_fraInfo,
                        {.name = "txtShipName",
                         .place = {210, 3045, 2640, 285},
                         .text = "Ship Name",
                         .accessibleName = "Ship name",
                         .isLocked = true}};
    TextBox txtDesigner{m_fraInfo,
                        {.name = "txtDesigner",
                         .place = {210, 3465, 2640, 285},
                         .text = "Ship Designer",
                         .accessibleName = "Designer",
                         .isLocked = true}};

private:
    /// A box and the name that it shows.
    struct Name {
        TextBox& box;
        bool& isEditing;
        std::string& shown;  ///< what the program has put into the box
        std::string ShipClass::* name;
    };

    void txtShipName_DblClick() { openOrCommit(nameOfShip()); }
    void txtDesigner_DblClick() { openOrCommit(nameOfDesigner()); }
    bool txtShipName_KeyPress(int KeyAscii) { return leaveByKey(nameOfShip(), KeyAscii); }
    bool txtDesigner_KeyPress(int KeyAscii) { return leaveByKey(nameOfDesigner(), KeyAscii); }

    Name nameOfShip() {
        return {txtShipName, bShipNameEditing, m_shownShipName, &ShipClass::g_sShipName};
    }
    Name nameOfDesigner() {
        return {txtDesigner, bDesignerEditing, m_shownDesigner, &ShipClass::g_sDesignerName};
    }
    void show(const Name& name);
    void openOrCommit(const Name& name);
    bool leaveByKey(const Name& name, int KeyAscii);
    void commit(const Name& name);
    void close(const Name& name);

    bool bShipNameEditing = false;  ///< the name's box is open
    bool bDesignerEditing = false;  ///< the designer's box is open
    std::string m_shownShipName, m_shownDesigner;
    std::string m_notKept;
};

}  // namespace fleetwright
