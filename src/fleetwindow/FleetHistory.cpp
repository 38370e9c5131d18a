#include "FleetHistory.h"

#include <algorithm>
#include <iterator>

namespace fleetwright {

void FleetHistory::note(const std::string& text, const FleetAct& act, std::int32_t time) {
    if (text == m_now) {
        return;
    }
    constexpr std::uint32_t second = 1000;
    const bool isJoined =
        !act.kind.empty() && act.kind == m_kind && canUndo() && !canRedo() &&
        static_cast<std::uint32_t>(time) - static_cast<std::uint32_t>(m_time) <= second;
    if (isJoined) {
        undo();
    }
    m_steps.resize(m_at);
    m_kind.clear();
    if (text == m_now) {
        return;  // it has come back to where it began
    }
    const auto [mine, other] = std::mismatch(m_now.begin(), m_now.end(), text.begin(), text.end());
    const auto at = static_cast<std::size_t>(mine - m_now.begin());
    const auto tail = std::mismatch(m_now.rbegin(), std::make_reverse_iterator(mine), text.rbegin(),
                                    std::make_reverse_iterator(other));
    m_steps.push_back({.at = at,
                       .before = std::string(mine, tail.first.base()),
                       .after = std::string(other, tail.second.base()),
                       .name = act.name});
    m_now = text;
    ++m_at;
    m_kind = act.kind;
    m_time = time;
}

const std::string& FleetHistory::undo() {
    const Step& step = m_steps[--m_at];
    m_kind.clear();
    return m_now.replace(step.at, step.after.size(), step.before);
}

const std::string& FleetHistory::redo() {
    const Step& step = m_steps[m_at++];
    m_kind.clear();
    return m_now.replace(step.at, step.before.size(), step.after);
}

}  // namespace fleetwright
