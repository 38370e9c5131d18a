#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace fleetwright {

/// Keeps a listener attached to a `Signal`; the listener is detached when this goes. It may
/// outlive the signal.
class Connection {
public:
    Connection() = default;
    explicit Connection(std::shared_ptr<void> listener) : m_listener(std::move(listener)) {}

private:
    std::shared_ptr<void> m_listener;
};

/// An event. Listeners are called in the order in which they were attached.
///
/// Events re-enter: a listener may raise the signal again, attach and detach listeners (itself
/// included), and destroy the signal. A listener that is attached while the signal is being
/// raised hears the next raise. One thread only.
template <typename... Arguments>
class Signal {
public:
    using Listener = std::function<void(Arguments...)>;

    Signal() = default;
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;
    ~Signal() = default;

    [[nodiscard]] Connection connect(Listener listener) {
        if (!m_state) {
            m_state = std::make_shared<State>();
        }
        if (m_state->raising == 0) {
            std::erase_if(m_state->listeners, [](const auto& entry) { return entry.expired(); });
        }
        auto attached = std::make_shared<Listener>(std::move(listener));
        m_state->listeners.push_back(attached);
        return Connection(std::move(attached));
    }

    void raise(Arguments... arguments) {
        if (!m_state) {
            return;
        }
        const Raising raising(m_state);
        const std::size_t attached = raising.state->listeners.size();
        for (std::size_t i = 0; i < attached; ++i) {
            if (const std::shared_ptr<Listener> listener = raising.state->listeners[i].lock()) {
                (*listener)(arguments...);
            }
        }
    }

private:
    struct State {
        std::vector<std::weak_ptr<Listener>> listeners;
        int raising = 0;
    };

    /// Keeps the list of listeners as it is for the length of one raise.
    struct Raising {
        explicit Raising(std::shared_ptr<State> held) : state(std::move(held)) { ++state->raising; }
        Raising(const Raising&) = delete;
        Raising& operator=(const Raising&) = delete;
        ~Raising() { --state->raising; }

        std::shared_ptr<State> state;
    };

    std::shared_ptr<State> m_state;
};

}  // namespace fleetwright
