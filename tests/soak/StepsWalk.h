#pragma once

#include "Actor.h"

#include <cstddef>
#include <functional>
#include <map>
#include <vector>

namespace fleetwright {

/// Acts at random on the windows, and then undoes all of it and redoes it. What has become of the
/// design was written down at each step, and what the window shows of it at each tenth one: both
/// have to be there again.
class StepsWalk {
public:
    explicit StepsWalk(Choices& choices);

    /// Throws what is not as it was.
    void walk(int acts);
    const History& history() const { return *m_actor.main.history.history(); }

private:
    void note();
    void go(MenuEntry& entry);
    void compare(std::map<std::size_t, std::size_t>& noted, std::size_t found,
                 const std::string& what) const;
    std::string design() const;
    std::string look() const;

    Actor m_actor;
    frmMain& m_window = m_actor.main;
    std::map<std::size_t, std::size_t> m_designs, m_looks, m_states;  ///< fingerprints by step
};

}  // namespace fleetwright
