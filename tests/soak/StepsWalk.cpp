#include "StepsWalk.h"

#include "formTexts.h"

#include <stdexcept>

namespace fleetwright {

StepsWalk::StepsWalk(Choices& choices) : m_actor(choices) {
    m_actor.mayEnd = false;
}

/// All of the design, but for where its file is and what of it is saved: a later save may change
/// that for all steps.
std::string StepsWalk::design() const {
    const DesignMoment& now = history().now();
    std::string text = m_window.g_Ship->shipFile() + (now.ship.g_bAutoMass ? "AutoMass " : "");
    for (const std::uint32_t word : wordsOf(now.ship)) {
        text += std::to_string(word) + ' ';
    }
    for (const auto& [record, amount] : now.ship.amounts) {
        text += std::to_string(record) + " x " + std::to_string(amount) + ' ';
    }
    return text + now.catalogue->text();
}

/// List, buttons, figures, names and the mark of AutoMass.
std::string StepsWalk::look() const {
    Controls controls;
    collect(m_window, controls);
    std::string text = m_window.mass.lblMassLeft.caption() + stateOf(m_window.mass.mnuAutoMass);
    for (const auto& [name, control] : controls) {
        if (const auto* const box = dynamic_cast<const TextBox*>(control)) {
            text += name + ' ' + box->text() + '\n';
        } else if (dynamic_cast<const OptionButton*>(control) != nullptr) {
            text += name + ' ' + stateOf(*control) + '\n';
        }
    }
    for (const ListView::Row& row : m_window.aboard.lvCurrentWeapons.rows()) {
        text += row.key + ' ' + row.subItem + '\n';
    }
    return text;
}

void StepsWalk::note() {
    constexpr std::size_t distance = 10;
    m_window.tmrRefreshScreen.tick();  // typed texts go
    const std::hash<std::string> hash;
    m_designs[history().place()] = hash(design());
    if (history().place() % distance == 0) {
        m_looks[history().place()] = hash(look());
    }
}

/// Holds against what was noted at this step, or notes it.
void StepsWalk::compare(std::map<std::size_t, std::size_t>& noted, std::size_t found,
                        const std::string& what) const {
    const auto was = noted.find(history().place());
    if (was != noted.end() && was->second != found) {
        throw std::runtime_error("step " + std::to_string(history().place()) + " of " +
                                 std::to_string(history().count()) + " has another " + what +
                                 ":\n" + look());
    }
}

void StepsWalk::go(MenuEntry& entry) {
    const std::size_t from = history().place();
    entry.choose();
    if (history().place() == from || m_window.g_Ship->state() != history().now().ship) {
        throw std::runtime_error("no step from " + std::to_string(from));
    }
    const std::hash<std::string> hash;
    compare(m_designs, hash(design()), "design");
    if (m_looks.contains(history().place())) {
        compare(m_looks, hash(look()), "look");
    }
    const ShipState& ship = history().now().ship;
    const std::size_t state =
        hash(ship.g_sSaveName + ship.g_sTrimmedFileName + ship.origin + (ship.g_bSaved ? "s" : ""));
    compare(m_states, state, "file");
    m_states[history().place()] = state;
}

void StepsWalk::walk(int acts) {
    MenuEntry &undo = m_window.history.mnuUndo, &redo = m_window.history.mnuRedo;
    for (MenuEntry* const entry : {&undo, &redo}) {
        entry->setVisible(false);  // what is noted of a step stays true
    }
    m_window.history.scRedo.setVisible(false);
    note();
    for (int act = 0; act < acts; ++act) {
        m_actor.act();
        note();
    }
    undo.setVisible(true);
    redo.setVisible(true);
    for (int way = 0; way < 3; ++way) {
        MenuEntry& entry = way % 2 == 0 ? undo : redo;
        while (entry.isEnabled()) {
            go(entry);
        }
        if (history().place() != (way % 2 == 0 ? 0 : history().count())) {
            throw std::runtime_error("the steps end early");
        }
    }
}

}  // namespace fleetwright
