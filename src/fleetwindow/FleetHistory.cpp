#include "FleetHistory.h"

#include "Clock.h"
#include "FaultError.h"
#include "fleetFile.h"
#include "text.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <system_error>
#include <utility>

namespace fleetwright {

void FleetHistory::note(const std::string& text, const FleetAct& act, std::int32_t time) {
    if (text == m_now) {
        return;
    }
    constexpr std::uint32_t second = 1000;
    const bool isJoined = !act.kind.empty() && act.kind == m_kind && canUndo() && !canRedo() &&
                          ticksBetween(m_time, time) <= second;
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
    return m_now.replace(step.at, step.after.size(), step.before);
}

const std::string& FleetHistory::redo() {
    const Step& step = m_steps[m_at++];
    m_kind.clear();
    return m_now.replace(step.at, step.before.size(), step.after);
}

std::vector<std::string> FleetHistory::stored() const {
    constexpr std::size_t most = 1000, mostBytes = std::size_t{32} << 20U;
    const std::size_t toEachSide =
        std::min(most, mostBytes / std::max<std::size_t>(m_now.size(), 1));
    const std::size_t first = m_at - std::min(m_at, toEachSide);
    const std::size_t end = std::min(m_steps.size(), m_at + toEachSide);
    std::vector<std::string> stored = {m_now, std::to_string(m_at - first)};
    for (std::size_t i = first; i < end; ++i) {
        const Step& step = m_steps[i];
        stored.insert(stored.end(), {std::to_string(step.at), step.before, step.after, step.name});
    }
    return stored;
}

std::optional<FleetHistory> FleetHistory::of(const std::vector<std::string>& stored) {
    constexpr std::size_t inFront = 2, ofStep = 4;
    if (stored.size() < inFront || (stored.size() - inFront) % ofStep != 0) {
        return std::nullopt;
    }
    const auto number = [](const std::string& text) {
        std::size_t value = 0;
        const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
        return end.ec == std::errc() && end.ptr == text.data() + text.size()
                   ? value
                   : std::numeric_limits<std::size_t>::max();
    };
    FleetHistory history(stored[0]);
    history.m_at = number(stored[1]);
    for (std::size_t i = inFront; i < stored.size(); i += ofStep) {
        history.m_steps.push_back({.at = number(stored[i]),
                                   .before = stored[i + 1],
                                   .after = stored[i + 2],
                                   .name = shownText(stored[i + 3])});
    }
    const bool isWell = history.m_at <= history.m_steps.size() && history.areMomentsFleets();
    return isWell ? std::optional(std::move(history)) : std::nullopt;
}

/// Goes all the way back and forth, on a copy.
bool FleetHistory::areMomentsFleets() const {
    for (const bool isBack : {true, false}) {
        FleetHistory at = *this;
        try {
            parseFleet(at.m_now);
            while (isBack ? at.canUndo() : at.canRedo()) {
                const Step& step = at.m_steps[isBack ? at.m_at - 1 : at.m_at];
                const std::string& replaced = isBack ? step.after : step.before;
                if (step.at > at.m_now.size() ||
                    at.m_now.compare(step.at, replaced.size(), replaced) != 0) {
                    return false;
                }
                parseFleet(isBack ? at.undo() : at.redo());
            }
        } catch (const FaultError&) {
            return false;
        }
    }
    return true;
}

}  // namespace fleetwright
