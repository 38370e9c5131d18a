#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>

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
        /// Nothing is under way any more; before that was one act, or more than one. `kind` is what
        /// the one has said of itself, else empty. May be empty.
        std::function<void(std::string_view kind)> rested = {};
    };

    explicit Acts(Subject subject);
    Acts(const Acts&) = delete;
    Acts& operator=(const Acts&) = delete;
    ~Acts() = default;

    /// Runs an act, or a part of the one that is under way. Acts of the same kind that follow each
    /// other closely, such as those of an arrow that is held, are one to the user.
    void act(const Work& change, std::string_view kind = {});
    /// Runs what only shows the state as it is: controls that change there act on nothing.
    void showOnly(const Work& show);
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

    void rest();
    void runWaiting();

    Subject m_subject;
    std::deque<Work> m_waiting;
    Work m_end;
    int m_depth = 0;            ///< what is under way, one inside the other
    bool m_letsActsIn = false;  ///< whether the innermost of that does
    bool m_onlyShows = false;   ///< whether that shows, and acts on nothing
    std::string m_kind;         ///< of the one act since the last rest
};

}  // namespace fleetwright
