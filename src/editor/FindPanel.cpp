#include "FindPanel.h"

#include "text.h"

#include <algorithm>

namespace fleetwright {

FindPanel::FindPanel(const PanelContext& context, MenuEntry& mnuDesign, TreeView& tvWeapons,
                     StatusBar& sbStatus)
    : Panel(context), m_design(mnuDesign), m_tree(tvWeapons), m_status(sbStatus) {
    m_tree.onKeyPress = [this](const std::string& key) { return tvWeapons_KeyPress(key); };
    m_tree.onLostFocus = [this] { tvWeapons_LostFocus(); };
}

void FindPanel::show() {
    if (isUnderWay() && m_status.text().empty()) {
        say(false);
    }
}

void FindPanel::mnuFind_Click() {
    m_tree.setFocus();  // by which something may come to be selected
    if (!isUnderWay()) {
        begin();
    }
    find("");
}

bool FindPanel::tvWeapons_KeyPress(const std::string& key) {
    const bool isTyped = characterCount(key) == 1;
    const bool isForward = key == "F3" || key == "Down";
    const bool isStep = isForward || key == "Shift+F3" || key == "Up";
    if (!isUnderWay()) {
        end();
        // With these the tree selects, opens and closes.
        if (isTyped && std::string_view(" +-*").find(key) == std::string_view::npos) {
            begin();
            find(key);
            return true;
        }
        return key.ends_with("F3") && resume(isForward);
    }
    if (isTyped) {
        if (characterCount(m_typed) < m_longest) {  // else nothing can be found any more
            find(m_typed + key);
        }
    } else if (key == "Backspace") {
        find(std::string(withoutLastCharacters(m_typed, 1)));
    } else if (key == "Esc") {
        showTree(*m_before);
        end();
    } else if (key == "Enter") {
        // What is shown is fitted, and nothing where nothing has been found.
        if (!matches().empty()) {
            end();
            return false;
        }
    } else if (isStep && !matches().empty()) {
        goOn(isForward);
    } else {
        return false;
    }
    return true;
}

void FindPanel::begin() {
    if (!m_names) {
        std::vector<std::string_view> names;
        for (const TreeView::Node& node : m_tree.nodes()) {
            if (node.parent != nullptr && node.children.empty()) {
                m_systems.push_back(&node);
                names.emplace_back(node.key);
                m_longest = std::max(m_longest, characterCount(node.key));
            }
        }
        m_names.emplace(names);
    }
    m_before = m_tree.view();
    m_shown = m_tree.selected();
}

void FindPanel::find(const std::string& typed) {
    m_typed = typed;
    m_names->find(typed);
    m_at = 0;
    if (matches().empty()) {
        say(true);
    }
    if (trimmed(typed).empty()) {
        showTree(*m_before);
    } else {
        m_last = typed;
    }
    if (!matches().empty()) {
        showMatch();
    }
}

void FindPanel::goOn(bool isForward) {
    m_at = (m_at + (isForward ? 1 : matches().size() - 1)) % matches().size();
    showMatch();
}

/// Takes the last search up again, next to what is selected if that is a match. False if it has
/// found nothing.
bool FindPanel::resume(bool isForward) {
    if (m_last.empty()) {
        return false;
    }
    m_names->find(m_last);
    if (matches().empty()) {
        return false;
    }
    m_typed = m_last;
    begin();
    const auto selected =
        std::find_if(matches().begin(), matches().end(),
                     [this](std::size_t system) { return m_systems[system] == m_tree.selected(); });
    m_at = 0;
    if (selected == matches().end()) {
        showMatch();
    } else {
        m_at = static_cast<std::size_t>(selected - matches().begin());
        goOn(isForward);
    }
    return true;
}

void FindPanel::showMatch() {
    TreeView::View view = *m_before;
    view.selected = m_systems[matches()[m_at]];
    view.top = nullptr;
    for (TreeView::Node* above = view.selected->parent; above != nullptr; above = above->parent) {
        view.expanded.push_back(above);
    }
    showTree(view);
    say(false);
}

/// The labels below the tree follow, as they do at each refresh.
void FindPanel::showTree(const TreeView::View& view) {
    m_tree.setView(view);
    m_shown = view.selected;
    act([this] { window().RefreshScreen(); });
}

void FindPanel::end() {
    if (!m_before) {
        return;
    }
    if (m_status.text() == m_said) {
        window().say("");
    }
    m_before.reset();
    m_names->find("");  // what was found needs no more room
}

/// Screen readers read what has come to be selected; else what is said is news to them.
void FindPanel::say(bool isNews) {
    m_said = trimmed(m_typed).empty() ? std::string("Find: type words of a system's name")
             : matches().empty()      ? "Find: " + quote(m_typed) + " - no match"
                                 : "Find: " + quote(m_typed) + " - " + std::to_string(m_at + 1) +
                                       " of " + std::to_string(matches().size());
    isNews ? m_status.setText(m_said) : m_status.setTextQuietly(m_said);
}

}  // namespace fleetwright
