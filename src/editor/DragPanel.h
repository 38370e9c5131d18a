#pragma once

#include "DragImage.h"
#include "ListView.h"
#include "Panel.h"
#include "TreePanel.h"

namespace fleetwright {

/// Dragging a system from the tree to the list of those aboard. The drag carries a picture only:
/// what is dropped is the system that is selected in the tree.
class DragPanel : public Panel {
public:
    DragPanel(const PanelContext& context, TreePanel& tree, ListView& lvCurrentWeapons);

    DragImage imgDrag{form(), {.name = "imgDrag", .place = {0, 0, 480, 480}, .isVisible = false}};

private:
    void tvWeapons_MouseMove(const MousePress& press);
    void tvWeapons_MouseUp(const MousePress& press);
    void lvCurrentWeapons_DragDrop(const Control& Source);

    TreePanel& m_tree;
};

}  // namespace fleetwright
