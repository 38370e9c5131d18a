#pragma once

#include "Control.h"
#include "Raster.h"
#include "Zoom.h"

#include <utility>

namespace fleetwright {

/// What stands around a window.
enum class Border {
    Fixed,     ///< a title, a close button
    FixedMin,  ///< and a button that minimizes
    Sizable,   ///< and buttons that minimize and maximize; the user can draw the edges
    None,      ///< nothing: the window is its inside
};

enum class WindowState { Normal, Minimized, Maximized };

/// What a window is at the start.
struct FormDesign {
    std::string name;
    std::string caption = {};
    int width = 0;   ///< of the inside, in twips
    int height = 0;  ///< of the inside, in twips
    Border border = Border::Fixed;
};

/// A window: its controls as members, its handlers as functions. It is loaded by its first show, or
/// by hand, and after it was unloaded it can be loaded again.
class Form : public Container {
public:
    explicit Form(const FormDesign& design);

    /// What border and title take of a window's measures, in twips.
    static constexpr int frameWidth = 120;
    static constexpr int frameHeight = 405;

    const std::string& caption() const { return design().caption; }
    void setCaption(const std::string& caption);
    Border border() const { return m_border; }
    bool isLoaded() const { return m_isLoaded; }
    WindowState state() const { return m_state; }
    bool isTopmost() const { return m_isTopmost; }
    /// The picture behind the controls; empty at first.
    const Raster& picture() const { return m_picture; }
    /// How large the user has made the window and all that is in it. Twips grow with it.
    Zoom zoom() const { return m_zoom; }
    /// Place of the window's left and upper edge on the screen, in twips.
    int left() const { return m_left; }
    int top() const { return m_top; }
    /// Measures of the window with its border, in twips; the place's are those of the inside.
    int width() const { return place().width + outside().width; }
    int height() const { return place().height + outside().height; }

    /// Runs Form_Load, unless the form is loaded.
    void load();
    /// Loads the form and shows it. A form that is shown already comes to the front.
    void show();
    void hide() { setVisible(false); }
    /// Runs Form_Unload and closes the window; false if the form refuses. A form that is not
    /// loaded, or that is going already, stays as it is.
    bool unload();
    /// Minimizes the window, or takes it back; the user's doing ends here too.
    void setState(WindowState state);
    /// Gives the window, with its border, these measures in twips; the user's doing ends here too.
    void resize(int width, int height);
    void moveTo(int left, int top);
    void setTopmost(bool isTopmost);
    void setZoom(Zoom zoom);
    void setPicture(Raster picture);
    /// Paints the window at once, without a turn of the event loop for anything else.
    void repaint() { RepaintWanted.raise(); }
    /// The window has become the active one.
    void activate() {
        if (std::exchange(m_isNew, false)) {
            Form_Opened();
        }
        Form_Activate();
    }
    /// The window has come to the screen.
    void paint() { Form_Paint(); }
    /// A key was pressed that no control has taken.
    void pressKey() { Form_KeyPress(); }

    /// The user has dropped files on the window, by their paths.
    void dropFiles(const std::vector<std::string>& files) {
        if (takesActs() && onFilesDrop) {
            onFilesDrop(files);
        }
    }
    /// Set once, by a form that takes files.
    std::function<void(const std::vector<std::string>& files)> onFilesDrop;

    /// For whoever draws it.
    Signal<> RepaintWanted;
    Signal<> Zoomed;
    Signal<> Raised;

protected:
    virtual void Form_Load() {}
    /// Setting `cancel` keeps the window.
    virtual void Form_Unload(bool& cancel) { static_cast<void>(cancel); }
    /// The first time after each load that the window is the active one; before Form_Activate.
    virtual void Form_Opened() {}
    virtual void Form_Activate() {}
    virtual void Form_Resize() {}
    virtual void Form_Paint() {}
    virtual void Form_KeyPress() {}

private:
    struct Outside {
        int width;
        int height;
    };
    Outside outside() const {
        return m_border == Border::None ? Outside{0, 0} : Outside{frameWidth, frameHeight};
    }

    Border m_border;
    bool m_isLoaded = false;
    bool m_isNew = false;  ///< it has not been the active window since it was loaded
    bool m_isUnloading = false;
    bool m_isTopmost = false;
    WindowState m_state = WindowState::Normal;
    Zoom m_zoom;
    Raster m_picture;
    int m_left = 0;
    int m_top = 0;
};

}  // namespace fleetwright
