#pragma once

#include "Frame.h"
#include "Label.h"
#include "Panel.h"
#include "TextBox.h"

namespace fleetwright {

/// The figures that the rules work out of the design. Pointing at one tells what it is made of.
class FiguresPanel : public Panel {
public:
    /// The mass left, which stands elsewhere, is explained as well.
    FiguresPanel(const PanelContext& context, Control& lblMassLeft);

    void show();

    Frame fraInfo{form(), {.name = "fraInfo", .place = {3780, 0, 2955, 3900}}};
    Label lblCost = label("lblCost", "Cost", 192);
    TextBox txtCost = box("txtCost", "Cost", 192, false);
    Label lblDP = label("lblDP", "DP", 576);
    TextBox txtDP = box("txtDP", "Damage points", 576, false);
    Label lblDamRows = label("lblDamRows", "Damage Rows", 960);
    TextBox txtDamRows = box("txtDamRows", "Damage rows", 960, true);
    Label lblDCP = label("lblDCP", "Damage Control", 1365, 120);
    TextBox txtDCP = box("txtDCP", "Damage control parties", 1365, true);
    Label Label5 = label("Label5", "Fire Controls", 1785);
    TextBox txtFireCon = box("txtFireCon", "Fire controls", 1785, true);
    Label lblClass = label("lblClass", "Class", 2205);
    TextBox txtClass = box("txtClass", "Class", 2205, true);
    Label lblRelSize = label("lblRelSize", "Designation", 2625, 105, 1155);
    TextBox txtRelSize = box("txtRelSize", "Designation", 2625, true);

private:
    Label label(const std::string& name, const std::string& caption, int top, int left = 105,
                int width = 1260);
    TextBox box(const std::string& name, const std::string& spoken, int top, bool isLocked);
};

}  // namespace fleetwright
