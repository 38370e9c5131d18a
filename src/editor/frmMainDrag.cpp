// Dragging a system from the tree of the main window to the list of those aboard. The drag carries
// a picture only: what is dropped is the system that is selected in the tree.

#include "frmMain.h"

namespace fleetwright {

void frmMain::tvWeapons_MouseMove(const MousePress& press) {
    const TreeView::Node* const node = tvWeapons.selected();
    if (press.button != LeftButton || node == nullptr || !node->children.empty()) {
        return;
    }
    imgDrag.setPicture(ilWeapons.picture(node->key));
    imgDrag.setVisible(true);
    imgDrag.setPlace({tvWeapons.place().left + static_cast<int>(press.x),
                      tvWeapons.place().top + static_cast<int>(press.y), imgDrag.place().width,
                      imgDrag.place().height});
    imgDrag.drag();
}

void frmMain::tvWeapons_MouseUp(const MousePress& press) {
    if (press.button == LeftButton) {
        imgDrag.setVisible(false);
    }
}

void frmMain::lvCurrentWeapons_DragDrop(const Control& Source) {
    if (&Source == &imgDrag) {
        AddSelectedWeapon(1);
    }
}

}  // namespace fleetwright
