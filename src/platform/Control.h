#pragma once

#include "Signal.h"

#include <functional>
#include <string>
#include <vector>

namespace fleetwright {

class Container;

/// Where a control stands inside its container, in twips.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Place&) const = default;
};

/// What a control is at the start: one row of a form's table. Which fields count is up to the kind
/// of control.
struct ControlDesign {
    std::string name;
    Place place = {};
    std::string caption = {};
    std::string text = {};     ///< of a text box, a box with a list or a status line
    std::string picture = {};  ///< name of the picture that is the control's face
    std::string toolTip = {};
    std::string shortcut = {};        ///< of a menu entry or shortcut: "Ctrl+N"
    bool isVerbatim = false;          ///< of a menu entry: an "&" is one, and marks no access key
    std::string accessibleName = {};  ///< where neither caption nor label says what it is
    std::string accessibleDescription = {};  ///< where the caption is a value: what is told by it
    bool isOn = false;                       ///< of all that is switched: buttons, menu entries
    bool isGraphical = false;     ///< of an option button or check box: a button that stays down
    bool isFramed = false;        ///< of a label or picture box: with a border
    bool isHeading = false;       ///< of a label: in large letters
    bool isAlarming = false;      ///< of a label: in the colour of what is wrong
    bool isFlat = false;          ///< of a text box: on the colour of its window, as a label
    bool isLocked = false;        ///< of a text box: shows, but takes no typing
    bool isMultiline = false;     ///< of a text box: with as many lines as it holds
    bool isUndoneByForm = false;  ///< of a text box: the keys that undo and redo are its form's
    bool isDefault = false;       ///< of a button: answers the Enter key
    bool isCancel = false;        ///< of a button or check box: answers the Escape key
    bool isVisible = true;
    bool isEnabled = true;
};

/// Mouse buttons as events number them.
enum MouseButton : int { LeftButton = 1, RightButton = 2, MiddleButton = 4 };

/// A press of a mouse button on a control.
struct MousePress {
    int button = 0;  ///< a MouseButton
    int shift = 0;   ///< bits: 1 Shift, 2 Ctrl, 4 Alt
    double x = 0.0;  ///< twips from the control's left edge
    double y = 0.0;  ///< twips from the control's top edge
};

/// A control of a form, without a window: it holds what the control shows and raises its events,
/// whoever changes it. What a user does reaches it through functions that say so; a disabled or
/// hidden control takes none of that.
class Control {
public:
    Control(Container* container, ControlDesign design);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    const ControlDesign& design() const { return m_design; }
    const std::string& name() const { return m_design.name; }
    const Place& place() const { return m_design.place; }
    void setPlace(const Place& place);
    Container* container() const { return m_container; }

    bool isVisible() const { return m_design.isVisible; }
    void setVisible(bool isVisible);
    bool isEnabled() const { return m_design.isEnabled; }
    void setEnabled(bool isEnabled);
    std::string toolTip() const { return askToolTip ? askToolTip() : m_design.toolTip; }
    void setToolTip(const std::string& toolTip);
    /// For a tool tip that is worked out when somebody wants to see it. Set once, by the form.
    std::function<std::string()> askToolTip;

    /// Whether a user can act on it: it and all that it stands in are visible and enabled.
    bool takesActs() const;

    /// What the control shows has changed. For whoever draws it; rules do not listen to this.
    Signal<> Changed;

    /// Asks for the keyboard's focus. For whoever draws it.
    Signal<> FocusWanted;
    void setFocus() { FocusWanted.raise(); }

protected:
    ControlDesign& changeableDesign() { return m_design; }

private:
    Container* m_container;
    ControlDesign m_design;
};

/// A control in which other controls stand.
class Container : public Control {
public:
    using Control::Control;

    /// The controls in it, in the order of their declaration, which is also the tab order.
    const std::vector<Control*>& controls() const { return m_controls; }

private:
    friend class Control;

    std::vector<Control*> m_controls;
};

/// An event of a control: at most one handler, as every form has for it.
using Handler = std::function<void()>;

/// Calls a handler, if there is one.
inline void raise(const Handler& handler) {
    if (handler) {
        handler();
    }
}

}  // namespace fleetwright
