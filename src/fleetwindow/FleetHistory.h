#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

/// An act of whoever puts a fleet together, as a step of its history.
struct FleetAct {
    std::string name;  ///< in words
    /// Acts of one kind that follow each other within a second are one step; empty: never.
    std::string kind = {};
};

/// What the user has done to a fleet, to be undone and redone without limit. Of each step only what
/// it has changed in the fleet's text is kept.
class FleetHistory {
public:
    explicit FleetHistory(std::string text = {}) : m_now(std::move(text)) {}

    /// The text of the fleet as it is.
    const std::string& now() const { return m_now; }

    /// The fleet has become this, `time` milliseconds after some moment. No step if it is the same.
    void note(const std::string& text, const FleetAct& act, std::int32_t time);
    /// The next step stands by itself.
    void endStep() { m_kind.clear(); }

    bool canUndo() const { return m_at > 0; }
    bool canRedo() const { return m_at < m_steps.size(); }
    /// In words, what would be undone or redone; empty if there is nothing.
    std::string undoName() const { return canUndo() ? m_steps[m_at - 1].name : std::string(); }
    std::string redoName() const { return canRedo() ? m_steps[m_at].name : std::string(); }
    /// Goes a step back or forth, which there must be; the text then.
    const std::string& undo();
    const std::string& redo();

    /// The texts of which it can be made again, as far as it is put aside: 1000 steps to each side
    /// at most, and fewer of a large fleet, so that all of its moments can be looked at.
    std::vector<std::string> stored() const;
    /// The history that such texts tell. Nothing if they tell none, or one with a moment that is no
    /// fleet.
    static std::optional<FleetHistory> of(const std::vector<std::string>& stored);

private:
    struct Step {
        std::size_t at;  ///< where the texts differ
        std::string before, after;
        std::string name;
    };

    bool areMomentsFleets() const;

    std::string m_now;
    std::vector<Step> m_steps;
    std::size_t m_at = 0;  ///< how many of them have been done
    std::string m_kind;    ///< of the last step, if another act may join it
    std::int32_t m_time = 0;
};

}  // namespace fleetwright
