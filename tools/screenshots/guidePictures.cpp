#include "guidePictures.h"

#include "frmMain.h"
#include "saveFile.h"

#include <string>

namespace fleetwright {

namespace {

/// Opens the way to a system and double-clicks it.
void fit(TreeView& tree, const std::string& system) {
    TreeView::Node& node = *tree.find(system);
    for (TreeView::Node* above = node.parent; above != nullptr; above = above->parent) {
        tree.setExpanded(*above, true);
    }
    tree.select(node);
    tree.doubleClick();
}

void write(TextBox& name, const std::string& text) {
    name.doubleClick();
    name.setText(text);
    name.pressKey(EnterKey);
}

}  // namespace

void buildFirstShip(frmMain& window, const std::filesystem::path& folder) {
    window.mass.mnuLightCruiser.choose();
    window.hull.optThrust[4].choose();
    TreeView& tree = window.tree.tvWeapons;
    for (const char* const system : {"Pulse Cannon II (FPS)", "Pulse Cannon II (FPS)",
                                     "Torpedo Tube I (F)", "Guard Gun (All)", "Ward Field I"}) {
        window.tree.cmdCollapseAll.press();
        fit(tree, system);
    }
    window.mass.mnuAutoMass.choose();
    window.mass.mnuAutoMass.choose();
    write(window.names.txtShipName, "Lantern");
    write(window.names.txtDesigner, "You");
    window.tmrRefreshScreen.tick();
    std::filesystem::create_directories(folder);
    saveFile(folder / "Lantern.shp", window.g_Ship->shipFile());
}

}  // namespace fleetwright
