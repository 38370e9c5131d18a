#pragma once

#include "Control.h"

namespace fleetwright {

/// What a window is at the start.
struct FormDesign {
    std::string name;
    std::string caption = {};
    int width = 0;   ///< of the inside, in twips
    int height = 0;  ///< of the inside, in twips
};

/// A window: its controls as members, its handlers as functions. It is loaded by its first show, or
/// by hand, and after it was unloaded it can be loaded again.
class Form : public Container {
public:
    explicit Form(const FormDesign& design);

    const std::string& caption() const { return design().caption; }
    bool isLoaded() const { return m_isLoaded; }
    bool isMinimized() const { return m_isMinimized; }
    /// Place of the window's left and upper edge on the screen, in twips.
    int left() const { return m_left; }
    int top() const { return m_top; }

    /// Runs Form_Load, unless the form is loaded.
    void load();
    /// Loads the form and shows it.
    void show();
    void hide() { setVisible(false); }
    /// Runs Form_Unload and closes the window; false if the form refuses. A form that is not
    /// loaded, or that is going already, stays as it is.
    bool unload();
    void minimize();
    void moveTo(int left, int top);
    /// The window has become the active one.
    void activate() { Form_Activate(); }

protected:
    virtual void Form_Load() {}
    /// Setting `cancel` keeps the window.
    virtual void Form_Unload(bool& cancel) { static_cast<void>(cancel); }
    virtual void Form_Activate() {}

private:
    bool m_isLoaded = false;
    bool m_isUnloading = false;
    bool m_isMinimized = false;
    int m_left = 0;
    int m_top = 0;
};

}  // namespace fleetwright
