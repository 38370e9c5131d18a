#pragma once

#include "Menu.h"
#include "Panel.h"
#include "StatusBar.h"
#include "SystemSearch.h"
#include "TreeView.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace fleetwright {

/// Finding a system by what is typed in the tree. As long as a search is under way, the way to one
/// match is open besides what was, and the status line says what is looked for. Whoever goes on in
/// the tree by other keys, with the mouse, or elsewhere ends it there.
class FindPanel : public Panel {
public:
    FindPanel(const PanelContext& context, MenuEntry& mnuDesign, TreeView& tvWeapons,
              StatusBar& sbStatus);

    /// Says what is looked for, where the status line says nothing.
    void show();

private:
    MenuEntry& m_design;

public:
    MenuEntry mnuFind{m_design,
                      {.name = "mnuFind", .caption = "Find System...", .shortcut = "Ctrl+F"},
                      [this] { mnuFind_Click(); }};

private:
    void mnuFind_Click();
    bool tvWeapons_KeyPress(const std::string& key);
    void tvWeapons_LostFocus() { end(); }

    bool isUnderWay() const { return m_before && m_tree.selected() == m_shown; }
    const std::vector<std::size_t>& matches() const { return m_names->matches(); }
    void begin();
    void find(const std::string& typed);
    void goOn(bool isForward);
    bool resume(bool isForward);
    void showMatch();
    void showTree(const TreeView::View& view);
    void end();
    void say(bool isNews);

    TreeView& m_tree;
    StatusBar& m_status;
    std::vector<const TreeView::Node*> m_systems;
    std::optional<SystemSearch> m_names;      ///< of the systems; made by the first search
    std::optional<TreeView::View> m_before;   ///< the tree where the search began, while it lasts
    const TreeView::Node* m_shown = nullptr;  ///< what was selected then, or is so by the search
    std::string m_typed;
    std::string m_last;         ///< what was typed last in any search, if only blanks not
    std::size_t m_longest = 0;  ///< so many letters the longest name of a system has
    std::size_t m_at = 0;       ///< which of the matches is shown
    std::string m_said;         ///< on the status line
};

}  // namespace fleetwright
