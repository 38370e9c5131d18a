#pragma once

#include "PointedControl.h"

#include <deque>
#include <map>
#include <string_view>

namespace fleetwright {

class ImageList;

/// Nodes under nodes, each with a key that is also its text and the key of its picture.
class TreeView : public PointedControl {
public:
    struct Node {
        std::string key;
        Node* parent = nullptr;
        std::vector<Node*> children = {};
        bool isExpanded = false;
    };

    /// `images` holds a picture for each node under the node's key.
    TreeView(Container& container, ControlDesign design, const ImageList* images = nullptr)
        : PointedControl(&container, std::move(design)), m_images(images) {}

    const ImageList* images() const { return m_images; }

    /// Adds a node below the one with the key `parent`, or at the top if that is empty. A parent
    /// that is not there, or a key that is already, is a std::logic_error.
    Node& add(std::string_view parent, const std::string& key);

    /// All nodes in the order in which they were added.
    const std::deque<Node>& nodes() const { return m_nodes; }
    std::deque<Node>& nodes() { return m_nodes; }
    Node* find(std::string_view key);

    void setExpanded(Node& node, bool isExpanded);
    /// Opens all that the node stands below.
    void openWayTo(const Node& node);

    /// The selected node, if there is one.
    const Node* selected() const { return m_selected; }

    /// The user has selected this node.
    void select(const Node& node);

    /// What a user has before him.
    struct View {
        const Node* selected = nullptr;
        std::vector<Node*> expanded = {};  ///< of those with others below them
        const Node* top = nullptr;  ///< what stands in the uppermost line; null if nobody draws it
    };
    View view();
    void setView(const View& view);

    /// The user has pressed a key: a character, or a key of this name ("Shift+F3"). Enter is a
    /// double-click, but a node that is out of sight is only brought into view. Whether that or the
    /// form has dealt with it, so that nobody else does.
    bool pressKey(const std::string& key);
    /// The keyboard's focus has gone elsewhere.
    void loseFocus() { raise(onLostFocus); }

    std::function<bool(const std::string& key)> onKeyPress;
    Handler onLostFocus;

    /// For whoever draws it, who also sets the questions: a node is to be scrolled into view, or to
    /// the uppermost line.
    Signal<const Node&> SightWanted;
    Signal<const Node&> TopWanted;
    std::function<bool(const Node&)> askInSight;
    std::function<const Node*()> askTop;

    /// What is to be said of a node that the pointer rests on. May be empty.
    std::function<std::string(const Node&)> nodeToolTip;

private:
    void pressEnter();

    std::deque<Node> m_nodes;       // whose places stay as it grows
    std::vector<Node*> m_branches;  // those with others below: there are few
    std::map<std::string, Node*, std::less<>> m_byKey;
    const Node* m_selected = nullptr;
    const ImageList* m_images;
};

}  // namespace fleetwright
