#include "TreeView.h"

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

void TreeView::select(const Node& node) {
    if (takesActs() && m_selected != &node) {
        m_selected = &node;
        Changed.raise();
    }
}

}  // namespace fleetwright
