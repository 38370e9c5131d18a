#include "DragPanel.h"

namespace fleetwright {

DragPanel::DragPanel(const PanelContext& context, TreePanel& tree, ListView& lvCurrentWeapons)
    : Panel(context), m_tree(tree) {
    m_tree.tvWeapons.onMouseMove = [this](const MousePress& press) { tvWeapons_MouseMove(press); };
    m_tree.tvWeapons.onMouseUp = [this](const MousePress& press) { tvWeapons_MouseUp(press); };
    lvCurrentWeapons.onDragDrop = [this](Control& source) { lvCurrentWeapons_DragDrop(source); };
}

void DragPanel::tvWeapons_MouseMove(const MousePress& press) {
    const TreeView::Node* const system = m_tree.selectedSystem();
    if (press.button != LeftButton || system == nullptr) {
        return;
    }
    const Place& tree = m_tree.tvWeapons.place();
    imgDrag.setPicture(m_tree.ilWeapons.pictureIfAny(system->key));
    imgDrag.setVisible(true);
    imgDrag.setPlace({tree.left + static_cast<int>(press.x), tree.top + static_cast<int>(press.y),
                      imgDrag.place().width, imgDrag.place().height});
    imgDrag.drag();
}

void DragPanel::tvWeapons_MouseUp(const MousePress& press) {
    if (press.button == LeftButton) {
        imgDrag.setVisible(false);
    }
}

void DragPanel::lvCurrentWeapons_DragDrop(const Control& Source) {
    if (&Source == &imgDrag) {
        m_tree.AddSelectedWeapon(1);
    }
}

}  // namespace fleetwright
