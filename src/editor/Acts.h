#pragma once

#include <deque>
#include <functional>

namespace fleetwright {

/// The acts of whoever designs a ship: which of them is one of its own, which is taken back, and
/// what has to wait for their end.
///
/// - What an act sets off belongs to it: a control that it changes and that writes back to the ship
///   is no act of its own.
/// - An act that leaves the width of a number is undone as a whole, and said so.
/// - An act that comes in while another one lets acts in (AutoMass gives the event loop a turn, a
///   message box is open) is one of its own, and undone by itself.
/// - What saves, prints or replaces the ship waits until no act is under way. It runs in the order
///   in which it came, each piece to its end; acts may come in there, too.
/// - The end of the window waits for all of that. Behind it nothing runs: acts do nothing, and what
///   still waits is dropped.
///
/// One thread only. What is thrown besides OverflowError goes through, and leaves this in order.
class Acts {
public:
    using Work = std::function<void()>;

    /// What the acts work on.
    struct Subject {
        std::function<bool()> isThere;  ///< not before the load or behind the end
        /// Remembers the state as it is: what it returns goes back to that state and shows it.
        std::function<Work()> remember;
        Work overflowed;  ///< an act was undone because a number became too large
    };

    explicit Acts(Subject subject);
    Acts(const Acts&) = delete;
    Acts& operator=(const Acts&) = delete;
    ~Acts() = default;

    /// Runs an act, or a part of the one that is under way.
    void act(const Work& change);
    /// Runs what runs the event loop: acts that come in there are acts of their own.
    void letActsIn(const Work& turn);
    /// Runs work that finds the ship at rest: now, or when what is under way has ended.
    void whenIdle(Work work);
    /// Runs what ends the window: now, or when nothing is under way or waits any more.
    void endWhenIdle(Work end);
    /// Whether no act and no work is under way.
    bool isIdle() const { return m_depth == 0; }

private:
    class Scope;

    void runWaiting();

    Subject m_subject;
    std::deque<Work> m_waiting;
    Work m_end;
    int m_depth = 0;            ///< what is under way, one inside the other
    bool m_letsActsIn = false;  ///< whether the innermost of that does
};

}  // namespace fleetwright
