#pragma once

#include "Control.h"
#include "Signal.h"

#include <QRect>

#include <memory>

namespace fleetwright {

class Drawings;
class Raster;
struct Drawing;

/// Turns twips into device-independent pixels: 15 to the pixel, times the desktop font's line
/// height over the 13 pixels that the places of controls were drawn for, so that no text is cut
/// off with a larger font; but never so large that a form leaves the screen, unless its texts could
/// not be read then. What the user has zoomed comes on top of that.
///
/// All copies are the scale of one window, and zoom together.
class Scale {
public:
    /// The scale for a form of this inner size in twips. `drawings` has those of its pictures, and
    /// outlives its window.
    Scale(int formWidth, int formHeight, const Drawings* drawings = nullptr);

    int pixels(double twips) const;
    double twips(double pixels) const;
    /// The same in proportion to the letters, even if the form has to be smaller for its screen.
    int pixelsForLetters(double twips) const;
    QRect rect(const Place& place) const;

    /// How much larger the window is than by itself; 1 at first.
    double zoom() const { return m_shared->zoom; }
    void setZoom(double zoom) const;  ///< `Zoomed` is the window's to raise
    /// What is so many pixels large by itself.
    int zoomed(int pixels) const;
    /// The window has been zoomed, and its font with it. For the widgets in it.
    Signal<>& Zoomed() const { return m_shared->Zoomed; }

    /// The drawing of a picture; null if it has none that can be read.
    std::shared_ptr<const Drawing> drawingOf(const Raster& picture) const;

private:
    struct Shared {
        double pixelsPerTwip = 1;   ///< at a zoom of 1
        double lettersPerTwip = 1;  ///< pixels as well, for letters
        double zoom = 1;
        Signal<> Zoomed;
        const Drawings* drawings = nullptr;
    };
    std::shared_ptr<Shared> m_shared;
};

}  // namespace fleetwright
