#include "TreePanel.h"

#include "Desktop.h"
#include "Error.h"
#include "PictureFiles.h"
#include "SheetPictures.h"
#include "StartUpProgress.h"
#include "SystemsPanel.h"
#include "explainShip.h"
#include "paths.h"
#include "text.h"

namespace fleetwright {

TreePanel::TreePanel(const PanelContext& context, MenuEntry& mnuAddWeaps, SystemsPanel& aboard,
                     Handler collapsed)
    : Panel(context), m_addWeaps(mnuAddWeaps), m_aboard(aboard), m_collapsed(std::move(collapsed)) {
    tvWeapons.onDblClick = [this] { tvWeapons_DblClick(); };
    tvWeapons.onMouseDown = [this](const MousePress& press) { tvWeapons_MouseDown(press); };
    tvWeapons.nodeToolTip = [this](const TreeView::Node& node) {
        // A screen reader may still ask when the ship has gone.
        const bool isSystem = node.children.empty() && window().g_Ship != nullptr;
        const std::string system = isSystem ? describeSystem(ship(), node.key, 1) : std::string();
        return system.empty()
                   ? system
                   : system + "\n\nDouble-click, press Enter or drag it to the list to fit one";
    };
}

Button TreePanel::button(const std::string& name, const std::string& root,
                         const std::string& spoken, int left, int top) {
    return Button(form(),
                  {.name = name,
                   .place = {left, top, 645, 540},
                   .picture = "button-" + toSmallLetters(root),
                   .toolTip = spoken,
                   .accessibleName = spoken},
                  [this, root] { toggleCategory(root); });
}

MenuEntry TreePanel::addEntry(MenuEntry& menu, const std::string& name, std::int32_t amount) {
    const std::string number = std::to_string(amount);
    return MenuEntry(menu, {.name = name + number, .caption = "X" + number},
                     [this, amount] { mnuAddWeap_Click(amount); });
}

void TreePanel::addRoots() {
    for (const std::string_view root : catalogueRoots) {
        tvWeapons.add("", std::string(root));
    }
}

void TreePanel::LoadWeaponTree() {
    PictureFiles& pictures = services().pictures;
    for (const std::string_view root : catalogueRoots) {
        ilWeapons.add(std::string(root), pictures.builtIn("root-" + toSmallLetters(root) + ".gif"));
    }
    ilWeapons.add(std::string(blankPictureKey), pictures.builtIn("root-blank.gif"));
    const std::shared_ptr<const CatalogueText> catalogue = services().catalogueFile.read();
    for (const CatalogueLine& fields : catalogue->lines()) {
        if (!fields.isCategory()) {
            services().progress.setText("Loading: " + std::string(fields.name));
            services().progress.repaint();
        }
        const std::string categoryKey = toCapitals(fields.categoryKey);
        const std::string key = fields.isCategory() ? categoryKey : std::string(fields.name);
        ilWeapons.add(key, [this, icon = std::string(fields.icon)] { return readPicture(icon); });
        tvWeapons.add(fields.isCategory() ? toCapitals(fields.parentKey) : categoryKey, key);
    }
}

/// The start has made sure that it can be read. What has happened to it since is said.
Raster TreePanel::readPicture(const std::string& icon) const {
    try {
        return services().pictures.load(fileBelow(services().appFolder / "images", icon));
    } catch (const FileError& error) {
        window().say(complaint(error));
        throw;
    }
}

const TreeView::Node* TreePanel::selectedSystem() const {
    const TreeView::Node* const node = tvWeapons.selected();
    return node != nullptr && node->children.empty() ? node : nullptr;
}

void TreePanel::AddSelectedWeapon(std::int32_t amount) {
    if (const TreeView::Node* const system = selectedSystem()) {
        m_aboard.changeAmount(system->key, amount);
    }
}

/// Opens or closes one category and closes everything else.
void TreePanel::toggleCategory(const std::string& root) {
    for (TreeView::Node& node : tvWeapons.nodes()) {
        tvWeapons.setExpanded(node, node.key == root && !node.isExpanded);
    }
}

void TreePanel::expandAll(bool isExpanded) {
    for (TreeView::Node& node : tvWeapons.nodes()) {
        tvWeapons.setExpanded(node, isExpanded);
    }
}

void TreePanel::cmdExpandAll_Click() {
    expandAll(true);
}

void TreePanel::cmdCollapseAll_Click() {
    expandAll(false);
    m_collapsed();
}

void TreePanel::tvWeapons_DblClick() {
    AddSelectedWeapon(1);
}

void TreePanel::tvWeapons_MouseDown(const MousePress& press) {
    if (press.button != RightButton) {
        return;
    }
    if (const TreeView::Node* const system = selectedSystem()) {
        window().say("Fits so many of " + quote(system->key));
        services().desktop.popUp(m_addWeaps);
    } else {
        window().say("Select a system first: the menu is about the selected one");
    }
}

void TreePanel::mnuAddWeap_Click(std::int32_t amount) {
    AddSelectedWeapon(amount);
}

}  // namespace fleetwright
