#include "PreviewPanel.h"

#include "wholeNumber.h"

namespace fleetwright {

PreviewPanel::PreviewPanel(const PanelContext& context, TreeView& tvWeapons,
                           ListView& lvCurrentWeapons)
    : Panel(context), m_tree(tvWeapons), m_list(lvCurrentWeapons) {
    tvWeapons.onClick = [this] { tvWeapons_Click(); };
    lvCurrentWeapons.onClick = [this] { lvCurrentWeapons_Click(); };
}

Label PreviewPanel::value(const std::string& what, int index, int left) {
    return Label(form(), {.name = "lblWeap" + what + std::to_string(index),
                          .place = {left, 7455, 960, 330},
                          .accessibleDescription = what + " of the system " +
                                                   (index == 0 ? "in the catalogue" : "aboard")});
}

void PreviewPanel::show(std::optional<std::size_t> row) {
    if (!m_shownRow.empty() && (!row || !m_list.find(m_shownRow))) {
        clear(1);  // for what has gone
        if (row) {
            previewRow(*row);
        }
    }
    if (m_tree.selected() == nullptr) {
        return;
    }
    previewNode();
    // Its message may have let acts in that have taken the row away, or the selection off it.
    if (const auto selected = m_list.selected(); !selected) {
        clear(1);
    } else if (row) {
        previewRow(*selected);
    }
}

void PreviewPanel::clear(std::size_t index) {
    lblWeapMass[index].setCaption("");
    lblWeapCost[index].setCaption("");
    if (index == 1) {
        m_shownRow.clear();
    }
}

void PreviewPanel::tvWeapons_Click() {
    const TreeView::Node* const node = m_tree.selected();
    if (node != nullptr && node->children.empty()) {
        act([this] { previewNode(); });
    }
}

void PreviewPanel::lvCurrentWeapons_Click() {
    if (const auto row = m_list.selected()) {
        act([this, row] { previewRow(*row); });
    }
}

void PreviewPanel::previewNode() {
    const TreeView::Node& node = *m_tree.selected();
    if (node.children.empty()) {
        preview(0, node.key, 1);
    } else {
        clear(0);
    }
}

void PreviewPanel::previewRow(std::size_t row) {
    if (row < m_list.rows().size()) {
        const ListView::Row system = m_list.rows()[row];  // a copy: the row may go
        m_shownRow = system.key;
        preview(1, system.key, wholeNumber(system.subItem));
    }
}

void PreviewPanel::preview(std::size_t index, const std::string& name, std::int32_t amount) {
    lblWeapMass[index].setCaption(std::to_string(ship().previewWeapMass(name, amount)));
    lblWeapCost[index].setCaption(std::to_string(ship().previewWeapCost(name, amount)));
}

}  // namespace fleetwright
