#pragma once

#include "Acts.h"
#include "Form.h"
#include "MainWindowServices.h"
#include "ShipClass.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace fleetwright {

/// What the panels of the main window know of it.
struct PanelContext {
    Form& form;
    const std::unique_ptr<ShipClass>& g_Ship;  ///< the current ship; null before and behind it
    Acts& acts;
    const MainWindowServices& services;
    std::function<void()> RefreshScreen;               ///< copies the ship to all controls
    std::function<void(const std::string&)> say;       ///< puts a text on the status line
    std::function<void(const std::string&)> takeBack;  ///< takes it away, if it still stands there
};

/// A part of the main window: its controls, their handlers, and the rules of what they are about.
/// No control is the master copy of a value: a handler changes the ship, and `show` copies the ship
/// to the controls, again and again until both agree.
class Panel {
public:
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

protected:
    explicit Panel(const PanelContext& context) : m_window(context) {}
    ~Panel() = default;

    const PanelContext& window() const { return m_window; }
    Form& form() const { return m_window.form; }
    const MainWindowServices& services() const { return m_window.services; }
    /// The current ship; only inside an act or a `show`.
    ShipClass& ship() const { return *m_window.g_Ship; }
    void act(const Acts::Work& change, std::string_view kind = {}) const {
        m_window.acts.act(change, kind);
    }

private:
    const PanelContext& m_window;
};

}  // namespace fleetwright
