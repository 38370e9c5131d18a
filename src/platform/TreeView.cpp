#include "TreeView.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace fleetwright {

TreeView::Node& TreeView::add(std::string_view parent, const std::string& key) {
    Node* above = nullptr;
    if (!parent.empty()) {
        above = find(parent);
        if (above == nullptr) {
            throw std::logic_error("unknown parent \"" + std::string(parent) + '"');
        }
    }
    if (find(key) != nullptr) {
        throw std::logic_error("double key \"" + key + '"');
    }
    Node& node = m_nodes.emplace_back(Node{.key = key, .parent = above});
    m_byKey[key] = &node;
    if (above != nullptr) {
        if (above->children.empty()) {
            m_branches.push_back(above);
        }
        above->children.push_back(&node);
    }
    Changed.raise();
    return node;
}

TreeView::Node* TreeView::find(std::string_view key) {
    const auto found = m_byKey.find(key);
    return found == m_byKey.end() ? nullptr : found->second;
}

void TreeView::setExpanded(Node& node, bool isExpanded) {
    if (node.isExpanded != isExpanded) {
        node.isExpanded = isExpanded;
        Changed.raise();
    }
}

void TreeView::openWayTo(const Node& node) {
    for (Node* above = node.parent; above != nullptr; above = above->parent) {
        setExpanded(*above, true);
    }
}

TreeView::View TreeView::view() {
    View view{.selected = m_selected, .top = askTop ? askTop() : nullptr};
    std::copy_if(m_branches.begin(), m_branches.end(), std::back_inserter(view.expanded),
                 [](const Node* node) { return node->isExpanded; });
    return view;
}

void TreeView::setView(const View& view) {
    for (Node* const node : m_branches) {
        node->isExpanded = false;
    }
    for (Node* const node : view.expanded) {
        node->isExpanded = true;
    }
    m_selected = view.selected;
    Changed.raise();
    if (view.top != nullptr) {
        TopWanted.raise(*view.top);
    } else if (m_selected != nullptr) {
        SightWanted.raise(*m_selected);
    }
}

bool TreeView::pressKey(const std::string& key) {
    if (!takesActs()) {
        return false;
    }
    if (onKeyPress && onKeyPress(key)) {
        return true;
    }
    if (key == "Enter") {
        pressEnter();
    }
    return key == "Enter";
}

void TreeView::pressEnter() {
    bool isInSight = true;
    for (const Node* below = m_selected; below != nullptr && below->parent != nullptr;
         below = below->parent) {
        isInSight = isInSight && below->parent->isExpanded;
    }
    if (isInSight && (m_selected == nullptr || !askInSight || askInSight(*m_selected))) {
        doubleClick();
    } else {
        openWayTo(*m_selected);
        SightWanted.raise(*m_selected);
    }
}

void TreeView::select(const Node& node) {
    if (takesActs() && m_selected != &node) {
        m_selected = &node;
        Changed.raise();
    }
}

}  // namespace fleetwright
