// The tree of systems in the main window, which is built once from the catalogue file.

#include "frmMain.h"

#include "Desktop.h"
#include "PictureFiles.h"
#include "StartUpProgress.h"
#include "TextFile.h"
#include "capitals.h"
#include "folders.h"

#include <algorithm>
#include <cctype>

namespace fleetwright {

namespace {

/// A root's key as it stands in the names of its pictures.
std::string smallLetters(std::string_view key) {
    std::string small(key);
    std::transform(small.begin(), small.end(), small.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return small;
}

}  // namespace

Button frmMain::treeButton(const std::string& name, const std::string& root,
                           const std::string& spoken, Place place) {
    return Button(*this,
                  {.name = name,
                   .place = place,
                   .picture = "button-" + smallLetters(root),
                   .toolTip = spoken,
                   .accessibleName = spoken},
                  [this, root] { toggleCategory(root); });
}

/// The pictures of the roots, and the white one that sheets are covered with.
void frmMain::addOwnPictures() {
    for (const std::string_view key : catalogueRoots) {
        ilWeapons.add(std::string(key),
                      m_services.pictures.builtIn("root-" + smallLetters(key) + ".gif"));
    }
    ilWeapons.add("BLANK", m_services.pictures.builtIn("root-blank.gif"));
}

void frmMain::LoadWeaponTree() {
    const std::shared_ptr<const CatalogueText> catalogue = m_services.catalogueFile.read();
    for (const CatalogueLine& fields : catalogue->lines()) {
        if (!fields.isCategory()) {
            m_services.progress.setText("Loading: " + std::string(fields.name));
            m_services.progress.repaint();
        }
        Raster picture = m_services.pictures.load(
            findFile(m_services.appFolder / "images" / nativePath(fields.icon)));
        const std::string categoryKey = toCapitals(fields.categoryKey);
        const std::string key = fields.isCategory() ? categoryKey : std::string(fields.name);
        ilWeapons.add(key, std::move(picture));
        tvWeapons.add(fields.isCategory() ? toCapitals(fields.parentKey) : categoryKey, key);
    }
}

/// Opens or closes one category and closes everything else.
void frmMain::toggleCategory(const std::string& root) {
    for (TreeView::Node& node : tvWeapons.nodes()) {
        tvWeapons.setExpanded(node, node.key == root && !node.isExpanded);
    }
}

void frmMain::cmdExpandAll_Click() {
    for (TreeView::Node& node : tvWeapons.nodes()) {
        tvWeapons.setExpanded(node, true);
    }
}

void frmMain::cmdCollapseAll_Click() {
    for (TreeView::Node& node : tvWeapons.nodes()) {
        tvWeapons.setExpanded(node, false);
    }
    lblWeapCost[0].setCaption("");
    lblWeapMass[0].setCaption("");
}

void frmMain::tvWeapons_Click() {
    const TreeView::Node* const node = tvWeapons.selected();
    if (node != nullptr && node->children.empty()) {
        act([this] { previewNode(); });
    }
}

/// Shows what one piece of the selected system weighs and costs on this ship.
void frmMain::previewNode() {
    const TreeView::Node& node = *tvWeapons.selected();
    if (!node.children.empty()) {
        lblWeapMass[0].setCaption("");
        lblWeapCost[0].setCaption("");
        return;
    }
    lblWeapMass[0].setCaption(std::to_string(g_Ship->previewWeapMass(node.key, 1)));
    lblWeapCost[0].setCaption(std::to_string(g_Ship->previewWeapCost(node.key, 1)));
}

void frmMain::tvWeapons_DblClick() {
    AddSelectedWeapon(1);
}

void frmMain::tvWeapons_MouseDown(const MousePress& press) {
    const TreeView::Node* const node = tvWeapons.selected();
    if (press.button == RightButton && node != nullptr && node->children.empty()) {
        m_services.desktop.popUp(mnuAddWeaps);
    }
}

}  // namespace fleetwright
